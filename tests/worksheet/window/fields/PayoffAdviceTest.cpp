// What the tooltip of an empty payoff date advises.

#include "QuendNames.h"
#include "WindowFixture.h"

#include <QApplication>
#include <QHelpEvent>
#include <QLineEdit>
#include <QToolTip>

#include <stdexcept>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

class PayoffAdvices : public WindowTest {
protected:
    PayoffAdvices() {
        Open();
        Window().OnNeverEnding([this](Row row) {
            m_asked.push_back(row.value);
            return u"Pay more %1"_s.arg(row.value);
        });
    }
    ~PayoffAdvices() override { QToolTip::hideText(); }

    /// Empty where no tooltip is shown.
    QString Hover(QStringView name) {
        const QString other = u"of another control"_s; // tooltips are hidden with a delay
        QWidget& control = Control(name);
        const QPoint at = control.rect().center();
        QToolTip::showText(control.mapToGlobal(at), other);
        QHelpEvent event(QEvent::ToolTip, at, control.mapToGlobal(at));
        QApplication::sendEvent(&control, &event);
        return QToolTip::text() == other ? QString() : QToolTip::text();
    }
    /// Without a term an intended payment is not raised.
    void EnterOffer(Row row, QStringView payment) {
        Fill(u"txtLoanAmount", u"100000");
        Fill(RowName(u"txtInterestRate", row.value), u"6");
        Choose(RowName(u"cboFrequency", row.value), 0);
        Fill(RowName(u"txtActualPayment", row.value), payment);
    }
    void EnterCurrentLoan(QStringView payment) {
        Fill(u"txtCurInterestRate", u"6");
        Fill(u"txtCurrentBalance", u"100000");
        Choose(u"cboActPaymentFrequency", 0);
        Fill(u"txtCurActualPayment", payment);
    }

    std::vector<int> m_asked;
};

TEST_F(PayoffAdvices, IsGivenWhereAPaymentNeverEnds) {
    EnterOffer(Row{1}, u"500"); // only the interest
    EnterCurrentLoan(u"100");
    EXPECT_TRUE(m_asked.empty()) << "before the tooltip is shown";
    EXPECT_EQ(Hover(u"txtPayoffDate(1)"), u"Pay more 1");
    EXPECT_EQ(Hover(u"txtCurPayoffDate"), u"Pay more -1");
    EXPECT_EQ(Hover(u"txtPayoffDate(0)"), QString()) << "a blank offer";
    EXPECT_EQ(m_asked, (std::vector{1, -1}));
    SheetToWrite().SortByInterest();
    SheetToWrite().ShowOffers();
    EXPECT_EQ(Hover(u"txtPayoffDate(0)"), u"Pay more 0");
}

TEST_F(PayoffAdvices, IsNotAskedForWhereThePaymentIsEnough) {
    EXPECT_EQ(Hover(u"txtCurPayoffDate"), QString());
    EnterOffer(Row{0}, u"501");
    EnterCurrentLoan(u"1000");
    EXPECT_EQ(Hover(u"txtPayoffDate(0)"), Control(u"txtPayoffDate(0)").toolTip());
    EXPECT_EQ(Hover(u"txtCurPayoffDate"), QString());
    EXPECT_TRUE(m_asked.empty());
}

TEST_F(PayoffAdvices, FailuresAreReportedAndNothingIsShown) {
    EnterCurrentLoan(u"100");
    const QStringList before = SettledMessages();
    Window().OnNeverEnding([](Row) -> QString { throw std::runtime_error("none"); });
    EXPECT_EQ(Hover(u"txtCurPayoffDate"), QString());
    EXPECT_EQ(SettledMessages().size(), before.size() + 1);
    Window().OnNeverEnding({});
    EXPECT_EQ(Hover(u"txtCurPayoffDate"), QString());
    EXPECT_EQ(SettledMessages().size(), before.size() + 1);
}

} // namespace
