#include "PageDrawing.h"
#include "DrawnItems.h"
#include "QuendNames.h"
#include "RulerMetrics.h"

#include <gtest/gtest.h>

#include <ostream>

namespace {

const PrintFont TenPoints{.family = {}, .points = 10, .bold = false, .italic = false};

class PageDrawingTest : public testing::Test {
protected:
    PageDrawingTest() {
        m_page.SetFont(TenPoints);
        m_page.SetScaleFactor(2);
    }
    PageDrawing& Page() { return m_page; }
    const PrintedPage& Drawn() const { return m_page.Pages().pages.back(); }
    std::vector<PrintedText> Texts() const { return ItemsOf<PrintedText>(Drawn()); }

private:
    RulerMetrics m_metrics;
    PageDrawing m_page{QSizeF(10000, 12000), m_metrics};
};

TEST_F(PageDrawingTest, BoxesAreScaledAndMovedWithAThinPen) {
    Page().SetOffsetX(30);
    Page().PrintBox(10, 20, 100, 40);
    const auto boxes = ItemsOf<PrintedBox>(Drawn());
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes.front().place, QRectF(80, 40, 200, 80));
    EXPECT_EQ(boxes.front().penWidth, 2);
}

TEST_F(PageDrawingTest, LinesAreScaledAndNotMoved) {
    Page().SetOffsetX(30);
    Page().PrintLine(1, 2, 300, 4, 5);
    const auto lines = ItemsOf<PrintedLine>(Drawn());
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines.front().line, QLineF(2, 4, 600, 8));
    EXPECT_EQ(lines.front().penWidth, 5);
}

struct InBox {
    const char* why;
    double offset;
    const char* text;
    bool right;
    std::vector<PrintedText> drawn;
};

void PrintTo(const InBox& box, std::ostream* out) { *out << box.why; }

PrintedText At(double x, double y, const char* text, double points = 10) {
    PrintFont font = TenPoints;
    font.points = points;
    return {QPointF(x, y), QString::fromUtf8(text), font};
}

/// A box at (50, 100), 500 wide and 200 high: in twips (100, 200), 1,000 and 400. A character is
/// 100 twips wide and 200 high; 908 twips remain for text.
class TextInBox : public PageDrawingTest, public testing::WithParamInterface<InBox> {};

const std::vector<InBox> BoxCases{
    {"left, 72 twips from the edge", 0, "abc", false, {At(172, 300, "abc")}},
    {"right, 72 twips from the edge", 0, "abc", true, {At(728, 300, "abc")}},
    {"moved with the offers", 10, "abc", false, {At(192, 300, "abc")}},
    {"moved and right", 10, "abc", true, {At(748, 300, "abc")}},
    {"nothing", 0, "", false, {}},
    {"two lines, centred as a block", 0, "ab\r\nc", false, {At(172, 200, "ab"), At(172, 400, "c")}},
    {"each line to the right", 0, "ab\r\nc", true, {At(828, 200, "ab"), At(928, 400, "c")}},
    {"an empty line takes its room",
     0,
     "a\r\n\r\nb",
     false,
     {At(172, 100, "a"), At(172, 500, "b")}},
    {"a single break of another kind is none", 0, "a\nb", false, {At(172, 300, "a\nb")}},
};

TEST_P(TextInBox, IsInItsPlace) {
    Page().SetOffsetX(GetParam().offset);
    Page().PrintTextInBox(50, 100, 500, 200, QString::fromUtf8(GetParam().text), GetParam().right);
    const auto texts = Texts();
    ASSERT_EQ(texts.size(), GetParam().drawn.size());
    for (std::size_t line = 0; line < texts.size(); ++line) {
        EXPECT_EQ(texts.at(line).place, GetParam().drawn.at(line).place);
        EXPECT_EQ(texts.at(line).text, GetParam().drawn.at(line).text);
        EXPECT_EQ(texts.at(line).font, GetParam().drawn.at(line).font);
    }
}

INSTANTIATE_TEST_SUITE_P(Boxes, TextInBox, testing::ValuesIn(BoxCases));

struct Fit {
    const char* text;
    double width; ///< twips; ten characters of ten points take 1,000
    const char* fitting;
    double points;
};

class Fitting : public PageDrawingTest, public testing::WithParamInterface<Fit> {};

INSTANTIATE_TEST_SUITE_P(Texts, Fitting,
                         testing::Values(Fit{"abcdefghij", 1000, "abcdefghij", 10},
                                         Fit{"abcdefghij", 900, "abcdefghij", 9},
                                         Fit{"abcdefghij", 500, "abcdefghij", 5},
                                         Fit{"abcdefghij", 400, "abcdefg…", 5},
                                         Fit{"abc defghi", 250, "abc…", 5},
                                         Fit{"abcdefghij", 100, "a…", 5},
                                         Fit{"abcdefghij", 99, "", 5}, Fit{"abcdefghij", 0, "", 5},
                                         Fit{"abcdefghij", -10, "", 5}, Fit{"", 0, "", 10},
                                         Fit{"\xF0\x9F\x8F\xA0"
                                             "bcdefghi",
                                             100, "", 5}));

TEST_P(Fitting, SmallerThenShorter) {
    EXPECT_EQ(Page().FitInto(QString::fromUtf8(GetParam().text), GetParam().width).toStdString(),
              GetParam().fitting);
    EXPECT_NEAR(Page().Font().points, GetParam().points, 0.06);
}

/// A character is 100 twips wide; at least 20 twips stay free on each side.
TEST_F(PageDrawingTest, TheSpaceBesideATextIsUsedBeforeItsTypeShrinks) {
    struct {
        const char* text;
        double width; // twips
        bool right;
        double x;
        double points;
    } const table[]{
        {"ab", 292, false, 72, 10}, // the text and the full padding
        {"ab", 292, true, 20, 10},   {"ab", 260, false, 40, 10},
        {"ab", 260, true, 20, 10},   {"ab", 240, false, 20, 10}, // the least padding
        {"ab", 190, false, 20, 7.5}, {"ab", 1000, true, 728, 10},
        {"x", 120, false, 10, 10}, // a single character keeps its size
        {"x", 80, true, -10, 10},
    };
    for (const auto& row : table) {
        Page().PrintTextInBox(0, 0, row.width / 2, 100, QString::fromUtf8(row.text), row.right);
        const PrintedText drawn = Texts().back();
        EXPECT_NEAR(drawn.place.x(), row.x, 0.01) << row.width;
        EXPECT_NEAR(drawn.font.points, row.points, 0.06) << row.width;
    }
}

TEST_F(PageDrawingTest, ATextMadeSmallerStaysInTheMiddleAndChangesNoOther) {
    Page().PrintTextInBox(50, 100, 500, 200, QStringLiteral("abcdefghijklmnopqr"), true);
    Page().PrintTextInBox(50, 100, 500, 200, QStringLiteral("abc"), true);
    const auto texts = Texts();
    const PrintedText& small = texts.front();
    EXPECT_LT(small.font.points, 6);
    EXPECT_NEAR(small.place.y() + small.font.points * TwipsPerPoint / 2, 400, 0.01);
    EXPECT_GE(small.place.x(), 100);
    EXPECT_EQ(texts.back().font, TenPoints);
}

struct LabelCase {
    const char* why;
    double height;
    bool centred;
    double width;
    QPointF place;
};

void PrintTo(const LabelCase& label, std::ostream* out) { *out << label.why; }

class Labels : public PageDrawingTest, public testing::WithParamInterface<LabelCase> {};

INSTANTIATE_TEST_SUITE_P(
    Captions, Labels,
    testing::Values(LabelCase{"at its point", -1, false, -1, {100, 200}},
                    LabelCase{"centred in a height", 300, false, -1, {100, 400}},
                    LabelCase{"centred in a width", -1, true, 400, {350, 200}},
                    LabelCase{"centred in both", 300, true, 400, {350, 400}},
                    LabelCase{"a width without the flag", 300, false, 400, {100, 400}},
                    LabelCase{"the flag without a width", 300, true, -1, {100, 400}}));

TEST_P(Labels, AreInTheirPlace) {
    Page().SetOffsetX(1000); // for boxes, not for labels
    Page().PrintLabel(50, 100, QStringLiteral("abc"), GetParam().height, GetParam().centred,
                      GetParam().width);
    ASSERT_EQ(Texts().size(), 1U);
    EXPECT_EQ(Texts().front().place, GetParam().place);
}

TEST_F(PageDrawingTest, PagesAreCountedFromOne) {
    EXPECT_EQ(Page().PageNumber(), 1);
    Page().PrintBox(1, 1, 1, 1);
    Page().NewPage();
    EXPECT_EQ(Page().PageNumber(), 2);
    EXPECT_TRUE(Drawn().items.empty());
    EXPECT_EQ(Page().Pages().pages.front().items.size(), 1U);
}

} // namespace
