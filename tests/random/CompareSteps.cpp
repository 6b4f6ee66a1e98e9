// The comparison window beside the main one: opened and closed, asked for other years and payments,
// given costs, sorted.

#include "FigureTable.h"
#include "Figures.h"
#include "LoanSchedule.h"
#include "QuendNames.h"
#include "RandomUser.h"
#include "StepTexts.h"
#include "TableRoles.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>
#include <QTest>

#include <array>

using namespace Qt::StringLiterals;
using quend::compare::Figure;
using quend::compare::FigureTable;

namespace {

FigureTable& CostsIn(const QWidget& window) {
    return *window.findChild<FigureTable*>(u"tblCosts"_s);
}

} // namespace

QWidget* RandomUser::Comparison() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == u"frmCompare" && window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

/// Opens the window, or brings it to the front. Painting it takes most of the time.
void RandomUser::OpenComparison(unsigned a, unsigned /*b*/) {
    const View before = Look();
    Trigger("mnuToolsCompare");
    if (!Commit(before)) {
        return;
    }
    if (QWidget* window = Comparison()) {
        window->setUpdatesEnabled(a % 8 == 0);
    } else {
        Complain(u"the comparison does not open"_s);
    }
}

void RandomUser::CloseComparison(unsigned /*a*/, unsigned /*b*/) {
    if (QWidget* window = Comparison(); window != nullptr && !window->close()) {
        Complain(u"the comparison does not close"_s);
    }
}

void RandomUser::CompareOtherwise(unsigned a, unsigned b) {
    static constexpr std::array choices{"optIntended", "optRequired", "optMonthly"};
    QWidget* window = Comparison();
    if (window == nullptr) {
        return;
    }
    window->findChild<QSpinBox*>(u"udYears"_s)->setValue(static_cast<int>(a % 50) + 1);
    const char* choice = choices.at(b % choices.size());
    window->findChild<QRadioButton*>(QString::fromLatin1(choice))->click();
    auto* amount = window->findChild<QLineEdit*>(u"txtMonthly"_s);
    if (amount->isEnabled()) {
        amount->setFocus();
        amount->selectAll();
        QTest::keyClicks(amount, QString::number(b * 2));
        QTest::keyClick(amount, Qt::Key_Return);
    }
}

/// As the table stores what was typed into it.
void RandomUser::EnterCosts(unsigned a, unsigned b) {
    const QWidget* window = Comparison();
    if (window == nullptr) {
        return;
    }
    QAbstractItemModel& figures = *CostsIn(*window).model();
    if (figures.rowCount() == 0) {
        return;
    }
    const QModelIndex cell =
        figures.index(static_cast<int>(a) % figures.rowCount(), static_cast<int>(Figure::Costs));
    const int place = cell.data(compare::PlaceRole).toInt();
    const QString text = TextFor(FieldId::LoanAmount, b, m_model.forms.Point());
    const bool isOffer = place != comparison::CurrentLoanPlace;
    const QString failure = isOffer ? m_model.FailureOf({FieldId::LoanAmount}, text) : QString();
    if (figures.setData(cell, text) != (isOffer && failure.isEmpty())) {
        Complain(
            u"costs of “%1” are %2"_s.arg(text, failure.isEmpty() ? u"refused"_s : u"taken"_s));
    }
    if (!failure.isEmpty()) {
        m_model.expected.append(failure);
    } else if (isOffer) {
        m_model.StoreCosts(place, m_model.forms.ReadAmount(text));
    }
}

void RandomUser::SortCosts(unsigned a, unsigned /*b*/) {
    if (const QWidget* window = Comparison()) {
        FigureTable& table = CostsIn(*window);
        table.SortBy(static_cast<int>(a) % table.model()->columnCount());
    }
}
