// Tables and pictures on paper: where pages break, what is repeated, and that nothing leaves the
// page.

#include "TablePages.h"
#include "DrawnItems.h"
#include "PagePainter.h"
#include "QuendNames.h"
#include "RulerMetrics.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <ostream>

namespace {

const RulerMetrics Ruler;

/// In RulerMetrics a letter of ten points is 100 twips wide and 200 high.
Paper PaperOf(QSizeF space) {
    return {.space = space,
            .metrics = &Ruler,
            .font = {.family = {}, .points = 10},
            .legalNotice = QStringLiteral("Legal")};
}

/// The cell "3.2" is in row 3 and column 2.
TableOnPaper TableOf(int rows, int columns) {
    TableOnPaper table{.title = QStringLiteral("Title"), .paragraphs = {QStringLiteral("Said")}};
    for (int column = 0; column < columns; ++column) {
        table.headings << QStringLiteral("H%1").arg(column);
        table.rightAligned.push_back(column > 0);
    }
    for (int row = 0; row < rows; ++row) {
        QStringList cells;
        for (int column = 0; column < columns; ++column) {
            cells << QStringLiteral("%1.%2").arg(row).arg(column);
        }
        table.rows.push_back(cells);
    }
    return table;
}

PrintedPages DrawOn(QSizeF space, const TableOnPaper& table) {
    return DrawWhole(*DrawingOf(table, PaperOf(space)));
}

QRectF PlaceOf(const PrintedText& text) {
    return {text.place, QSizeF(Ruler.Width(text.font, text.text), Ruler.Height(text.font))};
}

/// The texts of a page that match; blank patterns match none.
QStringList TextsWith(const PrintedPage& page, const QString& start, const QString& end) {
    QStringList found;
    for (const QString& text : TextsOf(page)) {
        if (text.startsWith(start) && text.endsWith(end)) {
            found << text;
        }
    }
    return found;
}

/// Each item is wholly on its page, and no text covers another one.
void ExpectInPlace(const PrintedPages& pages) {
    const QRectF whole(QPointF(-0.01, -0.01), pages.space + QSizeF(0.02, 0.02));
    for (const PrintedPage& page : pages.pages) {
        std::vector<QRectF> taken;
        for (const auto& text : ItemsOf<PrintedText>(page)) {
            const QRectF place = PlaceOf(text);
            EXPECT_TRUE(whole.contains(place)) << text.text.toStdString();
            for (const QRectF& other : taken) {
                const QRectF both = place.intersected(other);
                EXPECT_FALSE(both.width() > 0.01 && both.height() > 0.01)
                    << text.text.toStdString();
            }
            taken.push_back(place);
        }
        for (const auto& rule : ItemsOf<PrintedLine>(page)) {
            EXPECT_TRUE(whole.contains(rule.line.p1()) && whole.contains(rule.line.p2()));
        }
        for (const auto& picture : ItemsOf<PrintedPicture>(page)) {
            EXPECT_TRUE(whole.contains(picture.place));
        }
    }
}

struct TableBreak {
    const char* why;
    int rows;
    int columns;
    QSizeF space;
    std::vector<int> rowsOnPages;
    std::vector<const char*> lastHeadings; ///< the last heading of each page
};

void PrintTo(const TableBreak& tried, std::ostream* out) { *out << tried.why; }

// A row takes 260. Before the first one are 380 for the title, 300 for the paragraph and 260 for
// the headings, on further pages 300 and 260; the legal notice takes 240.
constexpr double First = 380 + 300 + 260 + 240;
// On a page only 1,000 wide the type shrinks to six points, and a row and the headings take 180.
constexpr double SmallFirst = 380 + 300 + 180 + 240;

// clang-format off
const std::vector<TableBreak> TableBreaks{
    // why                   rows columns space                           rows on pages  headings
    {"no row",                  0, 2, {9000, 5000},                       {0},           {"H1"}},
    {"one row",                 1, 2, {9000, 5000},                       {1},           {"H1"}},
    {"as many as fit",          4, 2, {9000, First + 4 * 260},            {4},           {"H1"}},
    {"one too many",            5, 2, {9000, First + 4 * 260},            {4, 1},        {"H1", "H1"}},
    {"full pages",             14, 2, {9000, First + 4 * 260},            {4, 5, 5},     {"H1", "H1", "H1"}},
    {"more pages",             15, 2, {9000, First + 4 * 260},            {4, 5, 5, 1},  {"H1", "H1", "H1", "H1"}},
    {"headings want a row",     1, 2, {9000, First + 200},                {0, 1},        {"", "H1"}},
    {"smaller type",            2, 4, {1400, 5000},                       {2},           {"H3"}},
    {"columns over pages",      2, 4, {1000, 5000},                       {2, 2},        {"H2", "H3"}},
    {"no row, narrow columns",  0, 4, {1000, 5000},                       {0},           {"H3"}},
    {"both over pages",         5, 6, {1000, SmallFirst + 4 * 180},       {4, 1, 5, 5},  {"H2", "H2", "H4", "H5"}},
};
// clang-format on

class BreakingTables : public testing::TestWithParam<TableBreak> {};

INSTANTIATE_TEST_SUITE_P(Tables, BreakingTables, testing::ValuesIn(TableBreaks));

TEST_P(BreakingTables, RepeatTitleHeadingsAndFirstColumn) {
    const TableBreak& wanted = GetParam();
    const PrintedPages pages = DrawOn(wanted.space, TableOf(wanted.rows, wanted.columns));
    ExpectInPlace(pages);
    ASSERT_EQ(pages.pages.size(), wanted.rowsOnPages.size());
    for (std::size_t at = 0; at < pages.pages.size(); ++at) {
        const PrintedPage& page = pages.pages.at(at);
        const QStringList headings = TextsWith(page, QStringLiteral("H"), {});
        const QString last = QLatin1String(wanted.lastHeadings.at(at));
        EXPECT_EQ(headings.value(headings.size() - 1), last);
        EXPECT_EQ(headings.value(0), last.isEmpty() ? last : QStringLiteral("H0"));
        for (const QString& heading : headings) {
            const QStringList cells = TextsWith(page, {}, u'.' + heading.mid(1));
            EXPECT_EQ(cells.size(), wanted.rowsOnPages.at(at)) << heading.toStdString();
        }
        EXPECT_EQ(TextsWith(page, QStringLiteral("T"), {}).size(), 1); // the title, perhaps cut
        const QString number = QStringLiteral("Page %1").arg(at + 1);
        EXPECT_EQ(TextsOf(page).count(number), at == 0 ? 0 : 1);
        EXPECT_EQ(TextsOf(page).count(QStringLiteral("Legal")), at + 1 == pages.pages.size());
    }
}

TEST(TablePages, AreDrawnInSectionsOfAHundredRows) {
    struct {
        int rows;
        int columns;
        double width;
        int sections; ///< one for what is above the rows
    } const table[]{{0, 2, 9000, 1},   {1, 2, 9000, 2},   {100, 2, 9000, 2},
                    {101, 2, 9000, 3}, {150, 4, 1000, 6}, {9, 0, 9000, 1}};
    for (const auto& row : table) {
        const auto drawing = DrawingOf(TableOf(row.rows, row.columns), PaperOf({row.width, 9000}));
        int sections = 1;
        while (drawing->DrawNext()) {
            ++sections;
        }
        EXPECT_EQ(sections, row.sections) << row.rows << ' ' << row.columns;
    }
}

TEST(TablePages, TitleNumberAndNoticeAreWhereTheReportHasThem) {
    const QSizeF space(9000, First + 260);
    const PrintedPages pages = DrawOn(space, TableOf(3, 2));
    EXPECT_EQ(pages.title, u"Title");
    EXPECT_EQ(pages.space, space);
    const PrintedText title = TextNamed(pages.pages.at(0), QStringLiteral("Title"));
    EXPECT_EQ(title.place, QPointF(0, 0));
    EXPECT_DOUBLE_EQ(title.font.points, 14);
    EXPECT_TRUE(title.font.bold);
    EXPECT_EQ(TextNamed(pages.pages.at(1), QStringLiteral("Title")).place, QPointF(0, 0));
    EXPECT_EQ(TextNamed(pages.pages.at(1), QStringLiteral("Page 2")).place, QPointF(8400, 0));
    const PrintedText notice = TextNamed(pages.pages.back(), QStringLiteral("Legal"));
    EXPECT_EQ(notice.place, QPointF((9000 - 300) / 2, space.height() - 120));
    EXPECT_DOUBLE_EQ(notice.font.points, 6);
    EXPECT_TRUE(notice.font.italic);
}

TEST(TablePages, NumbersAreAlignedAndColumnsAsWideAsTheirContent) {
    TableOnPaper table = TableOf(2, 3);
    table.rows.front().back() = QStringLiteral("123456.2");
    table.rows.back().front() = QStringLiteral("A lender");
    table.bold = {{1, 2}, {0, 0}};
    const PrintedPage page = DrawOn({9000, 5000}, table).pages.front();
    const PrintedText wide = TextNamed(page, QStringLiteral("123456.2"));
    const PrintedText narrow = TextNamed(page, QStringLiteral("1.2"));
    EXPECT_NEAR(PlaceOf(wide).right(), PlaceOf(narrow).right(), 0.01);
    EXPECT_TRUE(narrow.font.bold);
    EXPECT_FALSE(wide.font.bold);
    EXPECT_TRUE(TextNamed(page, QStringLiteral("0.0")).font.bold);
    EXPECT_EQ(TextNamed(page, QStringLiteral("0.0")).place.x(), 60);
    EXPECT_EQ(TextNamed(page, QStringLiteral("A lender")).place.x(), 60);
    const auto rules = ItemsOf<PrintedLine>(page);
    ASSERT_EQ(rules.size(), 3U);
    // 800, 300 and 800 of content, half a twip and 120 of padding each, and half of that more.
    EXPECT_NEAR(rules.front().line.x2(), 1.5 * (1900 + 3 * 120.5), 0.01);
}

TEST(TablePages, ALongCellIsWrappedAndThenCut) {
    TableOnPaper table = TableOf(2, 3);
    table.rows.front().front() = QStringLiteral("The bank of the prairie ").repeated(3).trimmed();
    table.rows.back().front() = QStringLiteral("word ").repeated(400).trimmed();
    table.headings.back() = QStringLiteral("A month without escrow");
    const PrintedPages pages = DrawOn({6000, 9000}, table);
    ExpectInPlace(pages);
    const PrintedPage& page = pages.pages.front();
    const QStringList lines = TextsOf(page).filter(QStringLiteral("bank"));
    EXPECT_EQ(lines.size(), 2);
    EXPECT_EQ(lines.join(u' '), table.rows.front().front());
    const QStringList words = TextsWith(page, QStringLiteral("word"), {});
    EXPECT_EQ(words.size(), 6);
    EXPECT_TRUE(words.back().endsWith(u'…'));
    EXPECT_EQ(TextsWith(page, QStringLiteral("w"), QStringLiteral("without")).size(), 1);
    EXPECT_EQ(TextNamed(page, QStringLiteral("H0")).place.y(),
              TextNamed(page, QStringLiteral("escrow")).place.y());
    EXPECT_EQ(TextNamed(page, QStringLiteral("1.1")).place.y(),
              TextNamed(page, words.front()).place.y());
}

TEST(TablePages, AWideTableWantsALandscapePage) {
    struct {
        double width;
        int columns;
        bool landscape;
    } const table[]{
        {9000, 2, false}, {1500, 3, false}, {1200, 3, true}, {1000, 6, true}, {1000, 0, false}};
    for (const auto& row : table) {
        const auto drawing = DrawingOf(TableOf(1, row.columns), PaperOf({row.width, 9000}));
        EXPECT_EQ(drawing->PrefersLandscape(), row.landscape) << row.width << ' ' << row.columns;
    }
}

struct Squeezed {
    QSizeF space;
    bool fits;
};

/// Whatever the texts: it ends, and if it fits, everything is on the page.
TEST(TablePages, HostileTablesEnd) {
    TableOnPaper table = TableOf(30, 12);
    table.title = QStringLiteral("A title of many words ").repeated(20);
    table.paragraphs << QString() << QStringLiteral("sentence ").repeated(300) << QString(500, u'M')
                     << QStringLiteral("one\ntwo\r\nthree\tfour");
    table.headings[3] = QString(200, u'H');
    table.headings[4] = QString();
    table.rightAligned.resize(5);
    table.rows.at(1) = {QString(3000, u'x'), QStringLiteral("a\nb\nc\nd\ne\nf\ng\nh")};
    table.rows.at(2)[5] = QString(400, u'9');
    table.rows.at(3) = {};
    table.rows.at(4) << QStringLiteral("surplus");
    table.bold = {{1000, 1000}, {2, 5}, {2, 5}};
    const Squeezed pages[]{
        {{11520, 15120}, true}, {{15120, 11520}, true}, {{5000, 6000}, true}, {{1000, 9000}, true},
        {{900, 9000}, false},   {{9000, 1300}, false},  {{9000, 0}, false},   {{0, 9000}, false},
        {{0, 0}, false},        {{-5, -5}, false},
    };
    for (const Squeezed& page : pages) {
        const auto drawing = DrawingOf(table, PaperOf(page.space));
        EXPECT_EQ(drawing->Fits(), page.fits) << page.space.width() << ' ' << page.space.height();
        const PrintedPages drawn = DrawWhole(*drawing);
        EXPECT_LT(drawn.pages.size(), 10000U);
        if (page.fits) {
            ExpectInPlace(drawn);
        }
    }
}

PictureOnPaper Chart(const TableOnPaper& table = {}) {
    return {
        .title = QStringLiteral("Chart"),
        .paragraphs = {QStringLiteral("Said")},
        .paint = [](QPainter& painter, const QRectF& place) { painter.fillRect(place, Qt::red); },
        .table = table};
}

TEST(PicturePages, APictureIsAsWideAsThePage) {
    // An inch has 96 units of 15 twips.
    struct {
        const char* why;
        QSizeF space;
        std::size_t page;
        QRectF place;
    } const table[]{
        {"on a sheet", {9600, 14400}, 0, {0, 680, 9600, 5760}},
        {"whole units", {9599, 14400}, 0, {0, 680, 9585, 383 * 15}},
        {"a little lower", {9600, 680 + 4500 + 240}, 0, {0, 680, 9600, 4500}},
        {"on the next page", {9600, 680 + 3900 + 240}, 1, {0, 300, 9600, 4275}},
    };
    for (const auto& row : table) {
        const PrintedPages pages = DrawWhole(*DrawingOf(Chart(), PaperOf(row.space)));
        ASSERT_EQ(pages.pages.size(), row.page + 1) << row.why;
        const auto pictures = ItemsOf<PrintedPicture>(pages.pages.at(row.page));
        ASSERT_EQ(pictures.size(), 1U) << row.why;
        EXPECT_EQ(pictures.front().place, row.place) << row.why;
        EXPECT_EQ(pictures.front().picture.boundingRect().size() * 15, row.place.size().toSize());
        ExpectInPlace(pages);
        EXPECT_EQ(TextsOf(pages.pages.back()).count(QStringLiteral("Legal")), 1);
    }
}

TEST(PicturePages, ATableFollowsUnderItsOwnTitle) {
    TableOnPaper table = TableOf(40, 3);
    table.title = QStringLiteral("Values");
    const PrintedPages pages = DrawWhole(*DrawingOf(Chart(table), PaperOf({9600, 12000})));
    ExpectInPlace(pages);
    ASSERT_EQ(pages.pages.size(), 2U);
    const double bottom = ItemsOf<PrintedPicture>(pages.pages.front()).front().place.bottom();
    EXPECT_GT(TextNamed(pages.pages.front(), QStringLiteral("Values")).place.y(), bottom);
    EXPECT_GT(TextNamed(pages.pages.front(), QStringLiteral("H0")).place.y(), bottom);
    EXPECT_EQ(TextNamed(pages.pages.back(), QStringLiteral("Chart")).place, QPointF(0, 0));
    EXPECT_EQ(pages.title, u"Chart");
}

TEST(PicturePages, NeedsAnInchEachWay) {
    const Squeezed pages[]{{{9600, 12000}, true},
                           {{1440, 2400}, true},
                           {{1400, 9000}, false},
                           {{9000, 1900}, false},
                           {{0, 0}, false}};
    for (const Squeezed& page : pages) {
        EXPECT_EQ(DrawingOf(Chart(), PaperOf(page.space))->Fits(), page.fits)
            << page.space.width() << ' ' << page.space.height();
    }
}

} // namespace
