// Drawing the report in memory: a page of 1,000 units, 20 twips each, fonts at their own size.

#include "Report.h"
#include "DrawnItems.h"
#include "QuendNames.h"
#include "RulerMetrics.h"
#include "SampleForm.h"

#include <gtest/gtest.h>

namespace {

constexpr double Unit = 20;
constexpr double FooterReserve = 12; // two lines of six points
constexpr double FirstRow = 330;     // where the rows of the first page begin
constexpr double NextRow = 60;       // where the rows of the other pages begin
constexpr double RowHeight = 20;

class ReportTest : public testing::Test {
protected:
    const PrintedPages& Draw(const ReportInput& form, double height, double width = SampleWidth) {
        m_report.emplace(form, QSizeF(width * Unit, height * Unit), m_metrics);
        for (const Report::Section section : Report::Sections) {
            (*m_report.*section)();
        }
        m_report->PrintPageFooter();
        return m_report->Pages();
    }
    /// The height of a page that has room for this many offer rows.
    static double HeightFor(int rows) { return FirstRow + rows * RowHeight + FooterReserve; }

private:
    RulerMetrics m_metrics;
    std::optional<Report> m_report;
};

QStringList Numbered(const char* label, int count) {
    QStringList texts;
    for (int entry = 0; entry < count; ++entry) {
        const QString name = QLatin1String(label);
        texts << name + QString::number(entry)
              << name + QStringLiteral("Text") + QString::number(entry);
    }
    return texts;
}

QStringList Headings() {
    QStringList texts;
    for (int heading = 0; heading < 10; ++heading) {
        texts << QStringLiteral("H%1").arg(heading);
    }
    return texts;
}

QStringList RowTexts(int first, int last) {
    QStringList texts;
    for (int row = first; row <= last; ++row) {
        for (const QString& text : SampleRow(row)) {
            if (!text.isEmpty()) {
                texts << text;
            }
        }
    }
    return texts;
}

TEST_F(ReportTest, HasItsOrder) {
    const PrintedPages& pages = Draw(SampleForm(2), 1000);
    ASSERT_EQ(pages.pages.size(), 1U);
    EXPECT_EQ(TextsOf(pages.pages.front()),
              QStringList{QStringLiteral("Current")} + Numbered("Header", 7) +
                  Numbered("First", 6) + Numbered("Second", 6) + Headings() + RowTexts(0, 1) +
                  QStringList{QStringLiteral("Legal")});
}

TEST_F(ReportTest, EachEntryIsLabelBoxAndText) {
    const PrintedPage& page = Draw(SampleForm(1), 1000).pages.front();
    // The heading, then the label, box and text of the loan's name.
    EXPECT_EQ(std::get<PrintedText>(page.items.at(0)).text, u"Current");
    EXPECT_EQ(std::get<PrintedText>(page.items.at(1)).text, u"Header0");
    EXPECT_EQ(std::get<PrintedBox>(page.items.at(2)).place,
              QRectF(100 * Unit, 10 * Unit, 150 * Unit, 20 * Unit));
    const auto& text = std::get<PrintedText>(page.items.at(3));
    EXPECT_EQ(text.text, u"HeaderText0");
    EXPECT_EQ(text.place, QPointF(100 * Unit + 72, 15 * Unit));
}

TEST_F(ReportTest, TheFourLinesFollowTheHeaderInThickPen) {
    const PrintedPage& page = Draw(SampleForm(1), 1000).pages.front();
    const auto lines = ItemsOf<PrintedLine>(page);
    ASSERT_EQ(lines.size(), 4U);
    for (std::size_t line = 0; line < lines.size(); ++line) {
        const QLineF drawn = SampleForm(1).lines.at(line);
        EXPECT_EQ(lines.at(line).line, QLineF(drawn.p1() * Unit, drawn.p2() * Unit));
        EXPECT_EQ(lines.at(line).penWidth, 5);
    }
    constexpr std::size_t before = 1 + 7 * 3; // the heading and the entries of the header
    EXPECT_TRUE(std::holds_alternative<PrintedLine>(page.items.at(before)));
}

TEST_F(ReportTest, TheHeadingIsCentredAndBold) {
    const PrintedText text =
        TextNamed(Draw(SampleForm(1), 1000).pages.front(), QStringLiteral("Current"));
    EXPECT_TRUE(text.font.bold);
    EXPECT_DOUBLE_EQ(text.place.x(), 400 * Unit + (200 * Unit - 7 * 100) / 2);
    EXPECT_FALSE(
        TextNamed(Draw(SampleForm(1), 1000).pages.front(), QStringLiteral("Header0")).font.bold);
}

TEST_F(ReportTest, LabelsAreOnTheirSide) {
    ReportInput form = SampleForm(1);
    form.header.at(2).label.side = Side::Right;
    form.headings.at(3).side = Side::Centre;
    const PrintedPage& page = Draw(form, 1000).pages.front();
    EXPECT_DOUBLE_EQ(TextNamed(page, QStringLiteral("Header2")).place.x(), 100 * Unit - 7 * 100);
    EXPECT_DOUBLE_EQ(TextNamed(page, QStringLiteral("H3")).place.x(),
                     280 * Unit + (80 * Unit - 2 * 100) / 2);
}

TEST_F(ReportTest, ARowIsElevenBoxesThenItsTexts) {
    const PrintedPage& page = Draw(SampleForm(1), 1000).pages.front();
    const auto boxes = ItemsOf<PrintedBox>(page);
    ASSERT_EQ(boxes.size(), 7U + 6 + 6 + 11);
    for (std::size_t column = 0; column < SampleColumns; ++column) {
        const double width = column + 1 < SampleColumns ? 80 : 80 + 16;
        EXPECT_EQ(boxes.at(19 + column).place,
                  QRectF((10 + static_cast<double>(column) * 85) * Unit, FirstRow * Unit,
                         width * Unit, RowHeight * Unit));
    }
}

TEST_F(ReportTest, OnlyATickedBoxPrintsAnX) {
    ReportInput form = SampleForm(4);
    const QStringList texts = TextsOf(Draw(form, 1000).pages.front());
    EXPECT_EQ(texts.count(QStringLiteral("x")), 2); // rows 1 and 3
}

TEST_F(ReportTest, TextsOfARowAreOnTheSideOfTheirColumn) {
    const PrintedPage& page = Draw(SampleForm(2), 1000).pages.front();
    const auto x = [&](const char* text) {
        return TextNamed(page, QLatin1String(text)).place.x() / Unit;
    };
    const double padding = 72 / Unit;
    EXPECT_DOUBLE_EQ(x("x"), 10 + padding);
    EXPECT_DOUBLE_EQ(x("0.1"), 10 + 85 + 80 - padding - 3 * 5);  // points, right
    EXPECT_DOUBLE_EQ(x("0.4"), 10 + 4 * 85 + padding);           // frequency, left
    EXPECT_DOUBLE_EQ(x("0.8"), 10 + 8 * 85 + padding);           // payoff date, left
    EXPECT_DOUBLE_EQ(x("0.9"), 10 + 9 * 85 + 80 - padding - 15); // interest, right
    EXPECT_DOUBLE_EQ(x("0.10"), 10 + 10 * 85 + padding);         // lender, left
}

TEST_F(ReportTest, AnEmptyWorksheetPrintsEmptyBoxes) {
    ReportInput form = SampleForm(6);
    for (auto* entries : {&form.header, &form.currentFirstHalf, &form.currentSecondHalf}) {
        for (FormEntry& entry : *entries) {
            entry.text.clear();
        }
    }
    for (FormRow& row : form.rows) {
        std::ranges::fill(row, QString());
    }
    const PrintedPage& page = Draw(form, 1000).pages.front();
    EXPECT_EQ(ItemsOf<PrintedBox>(page).size(), 19U + 6 * 11);
    EXPECT_EQ(ItemsOf<PrintedText>(page).size(), 1U + 19 + 10 + 1);
}

struct Break {
    int rows;
    double room; ///< number of rows that fit on the first page
    std::vector<int> onPages;
};

class Breaking : public ReportTest, public testing::WithParamInterface<Break> {};

// A further page has room for another 270 units, 13 rows.
INSTANTIATE_TEST_SUITE_P(Pages, Breaking,
                         testing::Values(Break{1, 1, {1}}, Break{2, 1, {1, 1}}, Break{16, 16, {16}},
                                         Break{16, 15.9, {15, 1}}, Break{16, 3, {3, 13}},
                                         Break{16, 2, {2, 14}}, Break{16, 1, {1, 14, 1}},
                                         Break{1, 0, {0, 1}}, Break{0, 1, {0}}));

TEST_P(Breaking, MovesRowsThatCrossTheFooter) {
    const auto height = FirstRow + GetParam().room * RowHeight + FooterReserve;
    const PrintedPages& pages = Draw(SampleForm(GetParam().rows), height);
    ASSERT_EQ(pages.pages.size(), GetParam().onPages.size());
    int row = 0;
    for (std::size_t page = 0; page < pages.pages.size(); ++page) {
        const int last = row + GetParam().onPages.at(page) - 1;
        QStringList texts = TextsOf(pages.pages.at(page));
        const QStringList rows = RowTexts(row, last);
        EXPECT_EQ(texts.takeLast(), u"Legal");
        EXPECT_EQ(texts.mid(texts.size() - rows.size()), rows);
        if (page > 0) {
            EXPECT_EQ(texts.mid(0, texts.size() - rows.size()),
                      (QStringList{QStringLiteral("Header0"), QStringLiteral("HeaderText0"),
                                   QStringLiteral("Page %1").arg(page + 1)} +
                       Headings()));
        }
        row = last + 1;
    }
}

TEST_F(ReportTest, AFurtherPageBeginsUnderTheLoansName) {
    const PrintedPages& pages = Draw(SampleForm(2), HeightFor(1));
    const PrintedPage& page = pages.pages.at(1);
    const PrintedText number = TextNamed(page, QStringLiteral("Page 2"));
    EXPECT_DOUBLE_EQ(number.place.x(), SampleWidth * Unit - 6 * 100);
    EXPECT_DOUBLE_EQ(number.place.y(), 15 * Unit);
    EXPECT_DOUBLE_EQ(TextNamed(page, QStringLiteral("H0")).place.y(), 45 * Unit);
    EXPECT_DOUBLE_EQ(TextNamed(page, QStringLiteral("H0")).place.x(), 10 * Unit);
    const auto boxes = ItemsOf<PrintedBox>(page);
    EXPECT_EQ(boxes.at(0).place, QRectF(100 * Unit, 10 * Unit, 150 * Unit, 20 * Unit));
    EXPECT_DOUBLE_EQ(boxes.at(1).place.left(), 10 * Unit);
    EXPECT_DOUBLE_EQ(boxes.at(1).place.top(), NextRow * Unit);
}

TEST_F(ReportTest, OnePageHasNoNumber) {
    for (const QString& text : TextsOf(Draw(SampleForm(3), 1000).pages.front())) {
        EXPECT_FALSE(text.startsWith(QStringLiteral("Page"))) << text.toStdString();
    }
}

TEST_F(ReportTest, TheFooterIsSmallItalicAndInTheMiddleOfTheLastLine) {
    const PrintedPages& pages = Draw(SampleForm(2), HeightFor(1));
    for (const PrintedPage& page : pages.pages) {
        const PrintedText footer = ItemsOf<PrintedText>(page).back();
        EXPECT_EQ(footer.text, u"Legal");
        EXPECT_EQ(footer.font.points, 6);
        EXPECT_TRUE(footer.font.italic);
        EXPECT_FALSE(footer.font.bold);
        EXPECT_DOUBLE_EQ(footer.place.x(), (SampleWidth * Unit - 5 * 60) / 2);
        EXPECT_DOUBLE_EQ(footer.place.y(), HeightFor(1) * Unit - 120);
    }
    EXPECT_FALSE(
        TextNamed(pages.pages.at(1), QStringLiteral("0.1").replace(u'0', u'1')).font.italic);
}

/// 96 units for the lender are 18.4 characters without the padding.
TEST_F(ReportTest, ALongLenderTextMakesItsRowHigher) {
    ReportInput form = SampleForm(2);
    form.rows.front().back() = QStringLiteral("First National Bank of the Prairie, Mrs. Miller");
    const PrintedPage& page = Draw(form, 1000).pages.front();
    const QStringList lines{QStringLiteral("First National"), QStringLiteral("Bank of the"),
                            QStringLiteral("Prairie, Mrs."), QStringLiteral("Miller")};
    double y = FirstRow + 2; // two units of padding above, two below
    for (const QString& line : lines) {
        EXPECT_DOUBLE_EQ(TextNamed(page, line).place.y(), y * Unit) << line.toStdString();
        y += 10;
    }
    const auto boxes = ItemsOf<PrintedBox>(page);
    EXPECT_EQ(boxes.at(19).place.height(), 44 * Unit);
    EXPECT_EQ(boxes.at(19 + 11).place.top(), (FirstRow + 44) * Unit);
    EXPECT_DOUBLE_EQ(TextNamed(page, QStringLiteral("0.1")).place.y(), (FirstRow + 17) * Unit);
}

TEST_F(ReportTest, ABreakInALenderTextStays) {
    ReportInput form = SampleForm(1);
    form.rows.front().back() = QStringLiteral("Ann\r\nBob");
    const PrintedPage& page = Draw(form, 1000).pages.front();
    EXPECT_DOUBLE_EQ(TextNamed(page, QStringLiteral("Ann")).place.y(), (FirstRow + 2) * Unit);
    EXPECT_DOUBLE_EQ(TextNamed(page, QStringLiteral("Bob")).place.y(), (FirstRow + 12) * Unit);
}

/// A row higher than a page starts on a new page and continues on the next ones; nothing is lost.
TEST_F(ReportTest, ARowHigherThanAPageGoesOn) {
    ReportInput form = SampleForm(2);
    QStringList words;
    for (int word = 0; word < 100; ++word) {
        words << QStringLiteral("lender-word-%1").arg(word, 4, 10, QLatin1Char('0'));
    }
    form.rows.front().back() = words.join(u' ');
    const double height = HeightFor(1);
    const PrintedPages& pages = Draw(form, height);
    QStringList printed;
    int values = 0;
    for (const PrintedPage& page : pages.pages) {
        for (const PrintedText& text : ItemsOf<PrintedText>(page)) {
            if (text.text.startsWith(QStringLiteral("lender"))) {
                printed << text.text;
                EXPECT_LE(text.place.y() + 200, (height - FooterReserve) * Unit + 0.01);
            }
            values += text.text == u"0.9" ? 1 : 0;
        }
        for (const PrintedBox& box : ItemsOf<PrintedBox>(page)) {
            EXPECT_LE(box.place.bottom(), (height - FooterReserve) * Unit + 0.01);
        }
    }
    EXPECT_EQ(printed, words);
    EXPECT_EQ(values, 1);
    EXPECT_EQ(pages.pages.size(), 5U); // 29 lines per page, from the second page on
    EXPECT_FALSE(ItemsOf<PrintedText>(pages.pages.back()).empty());
}

TEST_F(ReportTest, APageWithoutSpaceForALineStillEnds) {
    ReportInput form = SampleForm(3);
    form.rows.front().back() = QStringLiteral("a\r\nb\r\nc");
    EXPECT_EQ(Draw(form, 30).pages.size(), 1U + 3 + 2);
}

struct Type {
    double pageWidth; ///< as a multiple of the window's own width
    double points;    ///< the printed size of a font of ten points
};

class TypeSize : public ReportTest, public testing::WithParamInterface<Type> {};

INSTANTIATE_TEST_SUITE_P(Pages, TypeSize,
                         testing::Values(Type{2.0, 10}, Type{1.0, 10}, Type{0.8, 8}, Type{0.6, 6},
                                         Type{0.3, 6}));

/// Positions scale with the page; fonts never grow, but shrink on a page narrower than the window.
TEST_P(TypeSize, FollowsAPageNarrowerThanTheWindow) {
    ReportInput form = SampleForm(1);
    const PrintedPage& page = Draw(form, 3000, SampleWidth * GetParam().pageWidth).pages.front();
    EXPECT_NEAR(TextNamed(page, QStringLiteral("H1")).font.points, GetParam().points, 0.01);
    EXPECT_NEAR(ItemsOf<PrintedBox>(page).front().place.width(), 150 * Unit * GetParam().pageWidth,
                0.01);
}

TEST_F(ReportTest, NoTextLeavesItsBoxHoweverLong) {
    ReportInput form = SampleForm(1);
    for (auto* entries : {&form.header, &form.currentFirstHalf, &form.currentSecondHalf}) {
        for (FormEntry& entry : *entries) {
            entry.text = QString(300, u'M');
        }
    }
    std::ranges::fill(form.rows.front(), QString(40, u'8'));
    const RulerMetrics metrics;
    const PrintedPage& page = Draw(form, 1000).pages.front();
    QRectF box;
    int checked = 0;
    for (const PrintedItem& item : page.items) {
        if (const auto* drawn = std::get_if<PrintedBox>(&item)) {
            box = drawn->place;
        } else if (const auto* text = std::get_if<PrintedText>(&item);
                   text && text->text.startsWith(u'M')) {
            EXPECT_GE(text->place.x(), box.left());
            EXPECT_LE(text->place.x() + metrics.Width(text->font, text->text), box.right());
            EXPECT_TRUE(text->text.endsWith(u'…'));
            ++checked;
        }
    }
    EXPECT_EQ(checked, 19);
}

TEST(WidestWindow, KeepsTypeLegible) {
    // A page 8 inches wide: nine points may shrink to six.
    EXPECT_DOUBLE_EQ(Report::WidestWindow(8 * 1440, 9, 96 / 72.0), 8 * 96 * 1.5);
    EXPECT_DOUBLE_EQ(Report::WidestWindow(8 * 1440, 6, 96 / 72.0), 8 * 96);
    EXPECT_DOUBLE_EQ(Report::WidestWindow(8 * 1440, 5, 96 / 72.0), 8 * 96);
}

} // namespace
