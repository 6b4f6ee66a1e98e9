// The marks of raised payments and missing inputs, and the notice with the first mark.

#include "Colours.h"
#include "Language.h"
#include "QuendNames.h"
#include "TextNumbers.h"
#include "WindowFixture.h"

#include <QApplication>
#include <QTimer>

#include <cmath>
#include <vector>

namespace {

class Marks : public WindowTest {
protected:
    static QString Notice() {
        QString text = GetResourceText(TextNumber::PaymentRaised);
        EXPECT_FALSE(text.isEmpty());
        return text;
    }
    QColor Background(QStringView name) const {
        return Control(name).palette().color(QPalette::Base);
    }
    Mark MarkOf(QStringView name) const {
        const QColor colour = Background(name);
        return colour == Colours::Raised    ? Mark::Raised
               : colour == Colours::Missing ? Mark::Missing
                                            : Mark::None;
    }
    bool IsPlain(QStringView name) const {
        return Background(name) == QApplication::palette().color(QPalette::Base);
    }
    bool WaitForPlain(QStringView name) {
        return WaitFor([&] { return MarkOf(name) == Mark::None; });
    }
};

TEST_F(Marks, Timer1IsFoundInTheWindow) {
    Open({.noticeWaits = false});
    EXPECT_FALSE(Timer1().isActive());
    EXPECT_EQ(Timer1().interval(), 1000);
}

TEST_F(Marks, ARaisedPaymentIsYellowUntilTheNoticeHasBeenRead) {
    Open();
    FillFirstOffer();
    const QStringView field = u"txtActualPayment(0)";
    EXPECT_EQ(Text(field), u"$599.55");
    EXPECT_EQ(MarkOf(field), Mark::Raised);
    EXPECT_EQ(Background(field), QColor(255, 255, 128));
    EXPECT_TRUE(Messages().Texts().isEmpty()) << "the notice waits for the timer";
    Mark whileRead = Mark::None;
    Messages().WhileOpen([&] { whileRead = MarkOf(field); });
    HurryTimer();
    EXPECT_TRUE(WaitForPlain(field));
    EXPECT_TRUE(IsPlain(field));
    EXPECT_EQ(SettledMessages(), QStringList(Notice()));
    EXPECT_EQ(whileRead, Mark::Raised);
    EXPECT_TRUE(Sheet().PaymentNoticeShown());
}

TEST_F(Marks, TheNoticeIsShownOnceInARun) {
    Open();
    FillFirstOffer();
    HurryTimer();
    ASSERT_TRUE(WaitForPlain(u"txtActualPayment(0)"));
    EXPECT_EQ(Timer1().interval(), 2000);
    EXPECT_FALSE(Timer1().isActive());
    Timer1().setInterval(60000);
    Fill(u"txtInterestRate(0)", u"7");
    EXPECT_EQ(MarkOf(u"txtActualPayment(0)"), Mark::Raised);
    EXPECT_EQ(Text(u"txtActualPayment(0)"), u"$665.30");
    EXPECT_EQ(Timer1().interval(), 60000) << "only the notice sets the interval";
    HurryTimer();
    EXPECT_TRUE(WaitForPlain(u"txtActualPayment(0)"));
    EXPECT_EQ(SettledMessages(), QStringList(Notice()));
}

TEST_F(Marks, SeveralRaisedPaymentsShareOneNotice) {
    Open();
    FillFirstOffer();
    Fill(u"txtInterestRate(1)", u"6");
    Fill(u"txtTerm(1)", u"15");
    Choose(u"cboFrequency(1)", 0);
    HurryTimer();
    EXPECT_TRUE(WaitForPlain(u"txtActualPayment(0)") && WaitForPlain(u"txtActualPayment(1)"));
    EXPECT_EQ(SettledMessages(), QStringList(Notice()));
    EXPECT_EQ(Text(u"txtActualPayment(1)"), u"$843.86");
}

TEST_F(Marks, ARefusedPaymentIsReportedAtOnceAndNotAgainByTheTimer) {
    Open();
    FillFirstOffer();
    Fill(u"txtActualPayment(0)", u"100");
    EXPECT_EQ(Text(u"txtActualPayment(0)"), u"$599.55");
    EXPECT_EQ(MarkOf(u"txtActualPayment(0)"), Mark::Raised);
    EXPECT_EQ(SettledMessages(), QStringList(Notice()));
    HurryTimer();
    EXPECT_TRUE(WaitForPlain(u"txtActualPayment(0)"));
    EXPECT_EQ(SettledMessages(), QStringList(Notice()));
}

TEST_F(Marks, EveryRefusalIsReported) {
    Open();
    FillFirstOffer();
    for (int told = 1; told <= 3; ++told) {
        Fill(u"txtActualPayment(0)", u"100");
        EXPECT_EQ(SettledMessages().size(), told);
    }
}

TEST_F(Marks, APaymentThatIsEnoughIsKept) {
    Open();
    FillFirstOffer();
    Fill(u"txtActualPayment(0)", u"700");
    EXPECT_EQ(Text(u"txtActualPayment(0)"), u"$700.00");
    EXPECT_EQ(Text(u"txtPayment(0)"), u"$599.55");
    HurryTimer();
    EXPECT_TRUE(WaitForPlain(u"txtActualPayment(0)"));
    Fill(u"txtInterestRate(0)", u"5");
    EXPECT_EQ(MarkOf(u"txtActualPayment(0)"), Mark::None);
}

TEST_F(Marks, WhatIsMissingOfTheLoanHeldTodayIsPink) {
    struct Case {
        QStringView amount;
        QStringView term;
        QStringView rate;
        QStringView pink; ///< initials of the missing fields
    };
    const std::vector<Case> rows = {
        {u"", u"", u"", u""},          {u"", u"", u"6", u"AT"},       {u"", u"30", u"6", u"A"},
        {u"100000", u"30", u"6", u""}, {u"100000", u"", u"6", u"T"},  {u"100000", u"", u"", u"TR"},
        {u"", u"30", u"", u"AR"},      {u"100000", u"30", u"", u"R"}, {u"", u"", u"", u""},
    };
    const std::vector<QStringView> fields = {u"txtCurLoanAmount", u"txtCurLoanTerm",
                                             u"txtCurInterestRate"};
    Open();
    for (const auto& row : rows) {
        const std::vector<QStringView> typed = {row.amount, row.term, row.rate};
        for (std::size_t i = 0; i < std::size(fields); ++i) {
            Enter(fields[i]);
            Press(Qt::Key_Delete);
            Fill(fields[i], typed[i]);
        }
        for (std::size_t i = 0; i < std::size(fields); ++i) {
            const bool pink = row.pink.contains(QStringView(u"ATR").at(static_cast<qsizetype>(i)));
            EXPECT_EQ(MarkOf(fields[i]), pink ? Mark::Missing : Mark::None)
                << row.pink.toString().toStdString() << ": " << fields[i].toString().toStdString();
            EXPECT_EQ(Background(fields[i]) == QColor(255, 208, 215), pink);
            EXPECT_EQ(IsPlain(fields[i]), !pink);
        }
    }
    EXPECT_TRUE(SettledMessages().isEmpty());
}

double Luminance(const QColor& colour) {
    const auto linear = [](int part) {
        const double c = part / 255.0;
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.red()) + 0.7152 * linear(colour.green()) +
           0.0722 * linear(colour.blue());
}

double Contrast(const QColor& one, const QColor& other) {
    const double a = Luminance(one);
    const double b = Luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QPalette DarkPalette() {
    QPalette dark(QColor(50, 50, 50), QColor(35, 35, 35));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        dark.setColor(role, QColor(235, 235, 235));
    }
    dark.setColor(QPalette::Base, QColor(25, 25, 25));
    dark.setColor(QPalette::Window, QColor(40, 40, 40));
    return dark;
}

/// Sets the palette of the user's desktop during its lifetime.
class Desktop {
public:
    explicit Desktop(const QPalette& palette) { QApplication::setPalette(palette); }
    Q_DISABLE_COPY_MOVE(Desktop)
    ~Desktop() { QApplication::setPalette(m_before); }

private:
    QPalette m_before = QApplication::palette();
};

class Legibility : public Marks {
protected:
    void MarkSome() {
        FillFirstOffer();
        Fill(u"txtCurInterestRate", u"6");
        ASSERT_EQ(MarkOf(u"txtActualPayment(0)"), Mark::Raised);
        ASSERT_EQ(MarkOf(u"txtCurLoanAmount"), Mark::Missing);
    }
    void ExpectLegible() {
        for (const QStringView name :
             {u"txtActualPayment(0)", u"txtCurLoanAmount", u"txtLoanAmount", u"txtPandI(0)",
              u"txtCurAmountLeft", u"txtWho(0)"}) {
            const QPalette palette = Control(name).palette();
            constexpr double enough = 4.5; // for text of ordinary size
            EXPECT_GE(Contrast(palette.color(QPalette::Text), palette.color(QPalette::Base)),
                      enough)
                << name.toString().toStdString();
        }
        EXPECT_EQ(Background(u"txtPandI(0)"), Window().palette().color(QPalette::Window));
    }
};

TEST_F(Legibility, OnALightDesktop) {
    Open();
    MarkSome();
    ExpectLegible();
}

TEST_F(Legibility, OnADarkDesktop) {
    const Desktop dark(DarkPalette());
    Open();
    MarkSome();
    ExpectLegible();
}

TEST_F(Legibility, WhenTheDesktopTurnsDark) {
    Open();
    MarkSome();
    const Desktop dark(DarkPalette());
    Settle();
    ExpectLegible();
}

} // namespace
