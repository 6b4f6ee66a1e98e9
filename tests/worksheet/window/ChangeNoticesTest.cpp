// A reader beside the window is notified of everything that may change what it shows.

#include "EnterValues.h"
#include "OfferRows.h"
#include "QuendNames.h"
#include "WindowFixture.h"

#include <QSignalSpy>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

class ChangeNotices : public WindowTest {
protected:
    void EnterTogether() {
        const auto store = [this] { SheetToWrite().SetLoanAmount(Money::FromDouble(1)); };
        SheetToWrite().StoreTogether(store, [](Field, const auto& step) { step(); });
    }
    void UseMonths() {
        Settings settings = Window().GetSettings();
        settings.termInMonths = true;
        Window().ApplySettings(settings);
    }
};

TEST_F(ChangeNotices, FollowEveryChange) {
    Open();
    const auto enter = [this](FieldId id, Row row, const QString& text) {
        EnterText(SheetToWrite(), {id, row}, text);
    };
    const struct {
        const char* change;
        std::function<void()> make;
    } cases[] = {
        {"typed", [&] { Fill(u"txtLoanAmount", u"100000"); }},
        {"rate", [&] { Fill(u"txtInterestRate(0)", u"6"); }},
        {"lender", [&] { Fill(u"txtWho(1)", u"Bank"); }},
        {"ticked", [&] { Click(u"chkPoints(0)"); }},
        {"chosen", [&] { Choose(u"cboFrequency(0)", 0); }},
        {"date", [&] { SheetToWrite().SetCurrentNextPayment(Date::FromCalendar(2027, 1, 1)); }},
        {"costs", [&] { enter(FieldId::Costs, Row{0}, u"950"_s); }},
        {"name", [&] { enter(FieldId::LoanName, Field::NoRow, u"Home"_s); }},
        {"sorted", [&] { SheetToWrite().SortByInterest(); }},
        {"loaded", [&] { EnterTogether(); }},
        {"new", [&] { SheetToWrite().Clear(); }},
        {"row", [&] { Window().Rows().AddOfferRow(); }},
        {"unit", [&] { UseMonths(); }},
    };
    const QSignalSpy language(&Window(), &Loan::LanguageChanged);
    for (const auto& [change, make] : cases) {
        const QSignalSpy worksheet(&Window(), &Loan::WorksheetChanged);
        make();
        EXPECT_FALSE(worksheet.isEmpty()) << change;
    }
    EXPECT_TRUE(language.isEmpty());
    SwitchLanguage(Spanish);
    EXPECT_EQ(language.size(), 1);
}

TEST_F(ChangeNotices, NoneWhileTypingOrScrolling) {
    Open();
    Fill(u"txtLoanAmount", u"100000");
    Enter(u"txtInterestRate(0)");
    const QSignalSpy worksheet(&Window(), &Loan::WorksheetChanged);
    Type(u"6");
    Wheel(Control(u"picScroll"), -1);
    Window().KeepComparison(7, PaymentChoice::Monthly, Money::FromDouble(1'500));
    EXPECT_TRUE(worksheet.isEmpty());
    EXPECT_EQ(Window().GetSettings().compareYears, 7);
    EXPECT_EQ(Window().GetSettings().comparePayments, PaymentChoice::Monthly);
    EXPECT_EQ(Window().GetSettings().compareMonthly, Money::FromDouble(1'500));
}

} // namespace
