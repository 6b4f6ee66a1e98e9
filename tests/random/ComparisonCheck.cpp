#include "ComparisonCheck.h"

#include "Comparison.h"
#include "ComparisonOfWorksheet.h"
#include "FigureTexts.h"
#include "Figures.h"
#include "RandomUser.h"
#include "TableRoles.h"

#include <QTableView>

#include <set>
#include <utility>

using namespace Qt::StringLiterals;
using quend::compare::Figure;

namespace {

comparison::ComparisonInput EnteredIn(Loan& window) {
    comparison::ComparisonInput input = ToComparison(window.GetWorksheet());
    input.years = window.GetSettings().compareYears;
    input.choice = window.GetSettings().comparePayments;
    input.monthlyPayment = window.GetSettings().compareMonthly;
    return input;
}

QString FirstLine(const QString& who) { return who.section(u'\n', 0, 0).simplified(); }

} // namespace

void ComparisonCheck::Read(RandomUser& user) {
    const ReferenceModel& model = user.Model();
    comparison::ComparisonInput input = EnteredIn(user.TheProgram().Window());
    if (m_expected.input != input || m_expected.result.offers.size() != input.offers.size()) {
        m_expected.result = comparison::Compare(input);
        m_expected.input = std::move(input);
    }
    m_expected.lenders.clear();
    m_expected.rows.clear();
    for (std::size_t offer = 0; offer < model.offers.size(); ++offer) {
        m_expected.lenders.push_back(FirstLine(model.offers[offer].who));
        m_expected.rows.push_back(static_cast<int>(model.order.at(offer)) + 1);
        if (m_expected.input.offers.at(offer).costs.TenThousandths() != model.offers[offer].costs) {
            m_complaints.append(u"offer %1 has other costs"_s.arg(offer + 1));
        }
    }
}

void ComparisonCheck::CompareRow(const QAbstractItemModel& shown, int row,
                                 const DisplayFormats& formats) {
    for (int column = 0; column < shown.columnCount(); ++column) {
        const QModelIndex cell = shown.index(row, column);
        const int place = cell.data(compare::PlaceRole).toInt();
        const QString text = cell.data(quend::window::ValueTextRole).toString();
        const QString expected = compare::TextOf(
            compare::ValueOf(m_expected, static_cast<Figure>(column), place), formats);
        if (text != expected) {
            m_complaints.append(
                u"figure %1 of loan %2 is “%3” instead of “%4”"_s.arg(column).arg(place).arg(
                    text, expected));
        }
    }
}

QStringList ComparisonCheck::Complaints(RandomUser& user) {
    m_complaints.clear();
    const QWidget* window = RandomUser::Comparison();
    if (window == nullptr) {
        return {};
    }
    Read(user);
    const QAbstractItemModel& shown = *window->findChild<QTableView*>(u"tblCosts"_s)->model();
    const DisplayFormats& formats = user.TheProgram().Window().GetWorksheet().Texts().Formats();
    std::set<int> places;
    for (int row = 0; row < shown.rowCount(); ++row) {
        places.insert(shown.index(row, 0).data(compare::PlaceRole).toInt());
        CompareRow(shown, row, formats);
    }
    const std::vector<int> expected = compare::PlacesThatTakePart(m_expected);
    if (places != std::set<int>(expected.begin(), expected.end()) ||
        static_cast<std::size_t>(shown.rowCount()) != expected.size()) {
        m_complaints.append(
            u"%1 loans take part instead of %2"_s.arg(shown.rowCount()).arg(expected.size()));
    }
    return m_complaints;
}
