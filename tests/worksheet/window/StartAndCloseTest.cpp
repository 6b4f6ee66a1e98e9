// Opening and closing the window.

#include "QuendNames.h"
#include "WindowFixture.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

struct StartCase {
    const char* name;
    Start start;
};

void PrintTo(const StartCase& start, std::ostream* out) { *out << start.name; }

class FreshStart : public WindowTest, public ::testing::WithParamInterface<StartCase> {
protected:
    FreshStart() { Open(GetParam().start); }
};

INSTANTIATE_TEST_SUITE_P(
    Starts, FreshStart,
    ::testing::Values(StartCase{"English", {}},
                      StartCase{"Spanish", {.locale = Spain, .language = Spanish}},
                      StartCase{"Detected", {.language = -2}},
                      StartCase{"Months", {.locale = Germany, .termInMonths = true}},
                      StartCase{"OneRow", {.loansDisplayed = 0}}),
    [](const auto& start) { return start.param.name; });

TEST_P(FreshStart, HasNothingToSaveAndAsksNothing) {
    EXPECT_FALSE(Sheet().Dirty());
    EXPECT_FALSE(Sheet().PaymentNoticeShown());
    EXPECT_TRUE(Window().close());
    EXPECT_TRUE(SettledMessages().isEmpty());
    EXPECT_FALSE(Window().isVisible());
}

TEST_P(FreshStart, ShowsEmptyFields) {
    for (const QLineEdit* field : Window().findChildren<QLineEdit*>()) {
        if (!field->objectName().startsWith(u"qt_")) {
            EXPECT_EQ(field->text(), u"") << field->objectName().toStdString();
        }
    }
    for (const QComboBox* list : Window().findChildren<QComboBox*>()) {
        EXPECT_EQ(list->currentText(), u"") << list->objectName().toStdString();
        EXPECT_EQ(list->count(), list->objectName() == u"cboLoanName"   ? 0
                                 : list->objectName() == u"cboLoanType" ? 6
                                                                        : 4);
    }
}

TEST_P(FreshStart, ShowsTodayAsTheNextPayment) {
    EXPECT_EQ(Sheet().CurrentNextPayment(), Date::FromCalendar(2026, 11, 21));
    EXPECT_EQ(Text(u"dtNextPayment"), GetParam().start.locale == UnitedStates ? u"11/21/2026"
                                      : GetParam().start.locale == Germany    ? u"21.11.2026"
                                                                              : u"21/11/2026");
}

TEST_P(FreshStart, CarriesTheTitle) { EXPECT_EQ(Window().windowTitle(), u"Quend Loan"); }

TEST_P(FreshStart, WalkingThroughItChangesNothing) {
    Click(u"cboLoanName");
    for (int step = 0; step < 60; ++step) {
        Tab();
    }
    EXPECT_FALSE(Sheet().Dirty());
    EXPECT_TRUE(SettledMessages().isEmpty());
}

using Closing = WindowTest;

TEST_F(Closing, ByTheMenu) {
    Open();
    Window().findChild<QAction*>(QStringLiteral("mnuFileExit"))->trigger();
    EXPECT_FALSE(Window().isVisible());
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(Closing, ByTheKeysOfTheMenu) {
    Open();
    Click(u"txtLoanAmount");
    Press(Qt::Key_F, Qt::AltModifier);
    Press(Qt::Key_X);
    EXPECT_TRUE(WaitFor([&] { return !Window().isVisible(); }));
}

TEST_F(Closing, WhatStillWaitsIsShownOnce) {
    Open();
    Messages().WhileOpen([] { Settle(); }); // an open box processes other events
    Window().GetMessages().Post(u"one"_s);
    Window().GetMessages().Post(u"two"_s);
    Window().GetMessages().ShowRest();
    EXPECT_EQ(Messages().Texts(), (QStringList{u"one"_s, u"two"_s}));
    EXPECT_EQ(SettledMessages().size(), 2);
}

// The date of the current loan is an input like any other.
TEST_F(Closing, AnotherDateIsAChange) {
    Open();
    Click(u"dtNextPayment");
    Press(Qt::Key_Up);
    EXPECT_TRUE(Sheet().Dirty());
}

// A loan that is never paid off is reported; the value is kept and everything else is computed.
TEST_F(Closing, AFailureOfTheArithmeticIsReportedAndNothingIsLost) {
    Open();
    Fill(u"txtCurrentBalance", u"10000");
    Fill(u"txtCurInterestRate", u"12");
    Choose(u"cboActPaymentFrequency", 0);
    Enter(u"txtCurActualPayment");
    Type(u"100"); // exactly the interest
    Press(Qt::Key_Return);
    const QStringList told = SettledMessages();
    ASSERT_EQ(told.size(), 1);
    EXPECT_EQ(told.front(), u"This payment never repays the loan.\n"
                            "errn=6  src=Schedule  desc=Overflow");
    EXPECT_EQ(Sheet().CurrentActualPayment(), Money::FromDouble(100));
    EXPECT_EQ(Text(u"txtCurPayoffDate"), u"");
    Type(u"1000");
    Press(Qt::Key_Return);
    EXPECT_EQ(SettledMessages().size(), 1);
    EXPECT_FALSE(Text(u"txtCurPayoffDate").isEmpty());
}

} // namespace
