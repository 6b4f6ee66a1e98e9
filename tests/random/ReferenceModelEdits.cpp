// Undo, work on whole offers, and cells pasted from a spreadsheet.

#include "QuendNames.h"
#include "ReferenceModel.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

void ReferenceModel::Restore(const ModelValues& values) {
    const std::size_t rows = offers.size();
    loan = values.loan;
    current = values.current;
    offers = values.offers;
    offers.resize(rows);
    missing = values.missing;
    raised.clear();
    ShowOffers();
}

bool ReferenceModel::IsBlank(int row) const {
    ModelOffer offer = OfferIn(row);
    offer.interest = 0;
    return offer == ModelOffer();
}

void ReferenceModel::Replace(std::size_t index, const ModelOffer& offer) {
    offers.at(index) = offer;
    raised.erase(index);
    dirty = true;
    ShowOffer(offers.at(index));
}

void ReferenceModel::ClearOffer(int row) {
    if (!IsBlank(row)) {
        Replace(order.at(Place(row)), {});
    }
}

std::optional<int> ReferenceModel::DuplicateOffer(int row) {
    if (IsBlank(row)) {
        return std::nullopt;
    }
    int blank = 0;
    while (blank < static_cast<int>(offers.size()) && !IsBlank(blank)) {
        ++blank;
    }
    GrowTo(Place(blank) + 1);
    if (Place(blank) == offers.size()) {
        return std::nullopt;
    }
    Replace(order.at(Place(blank)), ModelOffer(OfferIn(row)));
    return blank;
}

std::optional<int> ReferenceModel::MoveOffer(int row, int by) {
    const std::size_t index = order.at(Place(row));
    const std::size_t other = index + static_cast<std::size_t>(by); // wraps below the first
    if (other >= offers.size()) {
        return std::nullopt;
    }
    const auto otherRow = static_cast<int>(std::ranges::find(order, other) - order.begin());
    if (IsBlank(row) && IsBlank(otherRow)) {
        return std::nullopt;
    }
    const ModelOffer moved = offers.at(index);
    Replace(index, ModelOffer(offers.at(other)));
    Replace(other, moved);
    return otherRow;
}

bool ReferenceModel::PasteCells(Field from, const std::vector<QStringList>& rows) {
    bool all = true;
    const auto after = from.row.value + static_cast<int>(rows.size());
    GrowTo(Place(after) + 1);
    std::vector<FieldId> columns;
    for (const FieldRule& rule : OfferFields()) {
        if (rule.access == Access::Input && rule.id >= from.id) {
            columns.push_back(rule.id);
        }
    }
    int row = from.row.value;
    for (const QStringList& cells : rows) {
        for (std::size_t i = 0; i < static_cast<std::size_t>(cells.size()); ++i) {
            const QString& cell = cells.at(static_cast<qsizetype>(i));
            const bool hasField = i < columns.size() && Place(row) < offers.size();
            const bool taken =
                hasField ? PasteCell({columns.at(i), Row{row}}, cell) : cell.trimmed().isEmpty();
            all = all && taken;
        }
        ++row;
    }
    return all;
}

namespace {

const std::array YesWords{u"1"_s, u"x"_s, u"true"_s};
const std::array NoWords{u""_s, u"0"_s, u"false"_s, u"no"_s};

/// An apostrophe before a sign keeps a text from being a formula.
QString Unguarded(const QString& cell) {
    const bool isGuarded =
        cell.size() > 1 && cell.startsWith(u'\'') && QStringView(u"=+-@").contains(cell.at(1));
    return cell.mid(isGuarded ? 1 : 0);
}

} // namespace

bool ReferenceModel::PasteCell(Field field, const QString& cell) {
    const QString text = cell.trimmed();
    switch (field.id) {
    case FieldId::Who:
        return Drop(field, Unguarded(cell));
    case FieldId::FinancePoints: {
        const QString word = text.toLower();
        const bool yes =
            std::ranges::count(YesWords, word) != 0 || word == (spanish ? u"sí"_s : u"yes"_s);
        return (yes || std::ranges::count(NoWords, word) != 0) && Try([&] {
                   Put(OfferIn(field.row.value).financed, yes);
                   RecalculateOffer(order.at(Place(field.row.value)));
               });
    }
    case FieldId::Frequency:
        return (text.isEmpty() || !FrequencyCode(text).isNull()) &&
               Try([&] { Store(field, text); });
    default:
        const auto number =
            forms.FromCell(Unguarded(text), field.id == FieldId::ActualPayment,
                           field.id == FieldId::Points || field.id == FieldId::InterestRate);
        return number && FailureOf(field, *number).isEmpty() &&
               Try([&] { StoreNumber(field, Read(field.id, *number)); });
    }
}
