// Access keys are unambiguous, and the tab order follows the reading order.

#include "WindowFixture.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct Appearance {
    const char* name;
    int language;
    bool termInMonths;
};

void PrintTo(const Appearance& appearance, std::ostream* out) { *out << appearance.name; }

/// The letter after a single "&"; null if the text has none.
QChar AccessKeyOf(const QString& text) {
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text[i] == u'&' && text[++i] != u'&') {
            return text[i].toLower();
        }
    }
    return {};
}

/// The letters in use and their controls.
class TakenKeys {
public:
    void Take(const QString& text, const QString& by) {
        const QChar key = AccessKeyOf(text);
        if (key.isNull()) {
            return;
        }
        EXPECT_TRUE(key.isLetterOrNumber()) << text.toStdString();
        EXPECT_FALSE(m_by.contains(key))
            << text.toStdString() << ": " << m_by.value(key).toStdString();
        m_by.insert(key, by);
    }
    qsizetype Count() const { return m_by.size(); }

private:
    QHash<QChar, QString> m_by;
};

class AccessKeys : public WindowTest, public ::testing::WithParamInterface<Appearance> {
protected:
    AccessKeys() {
        Open({.language = GetParam().language, .termInMonths = GetParam().termInMonths});
    }
};

INSTANTIATE_TEST_SUITE_P(Appearances, AccessKeys,
                         ::testing::Values(Appearance{"EnglishYears", English, false},
                                           Appearance{"EnglishMonths", English, true},
                                           Appearance{"SpanishYears", Spanish, false},
                                           Appearance{"SpanishMonths", Spanish, true}),
                         [](const auto& appearance) { return appearance.param.name; });

TEST_P(AccessKeys, OfTheWindowAndItsMenuBarAreTakenOnce) {
    TakenKeys taken;
    for (const QLabel* label : Window().findChildren<QLabel*>()) {
        taken.Take(label->text(), label->objectName());
    }
    for (const auto* button : Window().findChildren<QAbstractButton*>()) {
        taken.Take(button->text(), button->objectName());
    }
    for (const QAction* title : Window().menuBar()->actions()) {
        // All letters of "Edit" lead to fields, in both languages.
        EXPECT_EQ(AccessKeyOf(title->text()).isNull(), title->menu()->objectName() == u"mnuEdit")
            << title->text().toStdString();
        taken.Take(title->text(), title->text());
    }
    EXPECT_GE(taken.Count(), 15);
}

TEST_P(AccessKeys, OfEachMenuAreTakenOnce) {
    for (const QMenu* menu : Window().findChildren<QMenu*>()) {
        TakenKeys taken;
        for (const QAction* entry : menu->actions()) {
            taken.Take(entry->text(), entry->text());
            const bool languageName = menu->objectName() == u"mnuToolsLanguage";
            const bool edit = entry->menu() != nullptr && entry->menu()->objectName() == u"mnuEdit";
            EXPECT_TRUE(entry->isSeparator() || languageName || edit ||
                        !AccessKeyOf(entry->text()).isNull())
                << entry->text().toStdString();
        }
    }
}

TEST_P(AccessKeys, LeadToTheControlOfTheirLabel) {
    int tried = 0;
    for (const QLabel* label : Window().findChildren<QLabel*>()) {
        const QChar key = AccessKeyOf(label->text());
        if (!key.isNull()) {
            Click(u"txtWho(0)");
            Press(static_cast<Qt::Key>(key.toUpper().unicode()), Qt::AltModifier);
            ASSERT_NE(label->buddy(), nullptr) << label->objectName().toStdString();
            EXPECT_EQ(FocusName(), label->buddy()->objectName());
            EXPECT_TRUE(label->buddy()->objectName().endsWith(label->objectName().mid(3)));
            ++tried;
        }
    }
    EXPECT_GE(tried, 10);
}

const QStringList UpperBand = {u"cboLoanName"_s, u"cboLoanType"_s,    u"txtLoanAmount"_s,
                               u"txtLoanTerm"_s, u"txtAnnualTaxes"_s, u"txtAnnualInsurance"_s};
const QStringList CurrentBand = {u"txtCurLoanAmount"_s,    u"txtCurLoanTerm"_s,
                                 u"txtCurInterestRate"_s,  u"cboCurPaymentFrequency"_s,
                                 u"txtCurActualPayment"_s, u"cboActPaymentFrequency"_s,
                                 u"dtNextPayment"_s,       u"txtCurrentBalance"_s};
const QStringList Headings = {u"cmdPayoffDate"_s, u"cmdInterest"_s};
const QStringList RowBand = {u"chkPoints(%1)"_s, u"txtPoints(%1)"_s,    u"txtInterestRate(%1)"_s,
                             u"txtTerm(%1)"_s,   u"cboFrequency(%1)"_s, u"txtActualPayment(%1)"_s,
                             u"txtWho(%1)"_s};

class TabOrder : public WindowTest {
protected:
    TabOrder() { Open(); }

    static QStringList ExpectedOrder(int rows) {
        QStringList order = UpperBand + CurrentBand + Headings;
        for (int row = 0; row < rows; ++row) {
            for (const QString& field : RowBand) {
                order.append(field.arg(row));
            }
        }
        return order;
    }
};

TEST_F(TabOrder, GoesThroughBothBandsAndRowByRow) {
    const QStringList expected = ExpectedOrder(16);
    QStringList visited;
    Click(u"cboLoanName");
    for ([[maybe_unused]] const QString& stop : expected) {
        visited.append(FocusName());
        Tab();
    }
    EXPECT_EQ(visited, expected); // rows are appended during the walk
    EXPECT_EQ(FocusName(), u"cboLoanName") << "and starts again";
}

TEST_F(TabOrder, GoesBackTheSameWay) {
    QStringList expected = ExpectedOrder(3);
    std::ranges::reverse(expected);
    Click(RowName(u"txtWho", 2));
    for (const QString& name : expected) {
        EXPECT_EQ(FocusName(), name);
        BackTab();
    }
}

TEST_F(TabOrder, IsTheOrderOnTheScreen) {
    // A band is read column by column, a row from left to right.
    const auto readBefore = [&](const QString& one, const QString& other) {
        const QPoint a = Control(one).mapTo(&Window(), QPoint());
        const QPoint b = Control(other).mapTo(&Window(), QPoint());
        return a.x() < b.x() || (a.x() == b.x() && a.y() < b.y());
    };
    QStringList row;
    for (const QString& field : RowBand) {
        row.append(field.arg(2));
    }
    for (const QStringList& band : {UpperBand, CurrentBand, row}) {
        for (qsizetype i = 1; i < band.size(); ++i) {
            EXPECT_TRUE(readBefore(band[i - 1], band[i])) << band[i].toStdString();
        }
    }
    EXPECT_GT(Control(CurrentBand.front()).y(), Control(UpperBand.back()).y());
}

} // namespace
