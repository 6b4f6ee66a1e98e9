#include "WorksheetStore.h"

#include "Language.h"
#include "RegistryLimits.h"
#include "StoreNames.h"
#include "StoredWorksheet.h"
#include "TextNumbers.h"
#include "WorksheetValues.h"

#include <optional>

namespace quend::storage {

namespace {

/// A name that equals the entry for a new loan is allowed here.
bool CanBeKept(const QString& name) {
    return !Worksheet::IsEmptyName(name) && name.size() <= static_cast<qsizetype>(LongestKeyName) &&
           name.isValidUtf16() && !name.contains(u'\\') && !name.contains(QChar::Null);
}

/// No value for an invalid name: it would address a different key.
std::optional<std::string> KeyOf(const QString& name) {
    return CanBeKept(name) ? std::optional(std::string(BaseKey) + '\\' + name.toStdString())
                           : std::nullopt;
}

/// Writes the values of the loan, or of the offer with this prefix; `valueOf` gives that of a
/// field.
template <class ValueOf>
void WriteValues(const RegistryAPI& store, const std::string& key, const std::string& prefix,
                 const StoredTexts& texts, std::span<const KeptValue> values, ValueOf valueOf) {
    for (const KeptValue& kept : values) {
        const FieldValue value = valueOf(kept.field);
        if (kept.written == Written::Always || !IsZero(value)) {
            store.SetValue(StoreRoot, key, prefix + kept.name, kept.type, ToStored(value, texts));
        }
    }
}

void Write(const RegistryAPI& store, const std::string& key, const Worksheet& worksheet) {
    const StoredTexts texts(worksheet.Texts().Formats());
    WriteValues(store, key, "", texts, KeptWorksheetValues(),
                [&](FieldId field) { return worksheet.Value({field}); });
    std::int32_t count = 0;
    for (OfferIndex offer{0}; offer.value < worksheet.OfferCount(); ++offer.value) {
        if (WorksheetStore::IsWorthKeeping(worksheet.Offer(offer))) {
            WriteValues(store, key, OfferPrefix(++count), texts, KeptOfferValues(),
                        [&](FieldId field) { return worksheet.Value(field, offer); });
        }
    }
    store.SetValue(StoreRoot, key, LoanCountName, RegistryType::Number, count);
    store.SetValue(StoreRoot, key, DateFormatName, RegistryType::Text, texts.DateFormat());
}

} // namespace

NameFault WorksheetStore::FaultOf(const QString& name) {
    if (Worksheet::IsEmptyName(name)) {
        return NameFault::Empty;
    }
    if (!CanBeKept(name)) {
        return NameFault::NoKey;
    }
    const bool newLoan =
        Language::Instance().TextInEveryLanguage(TextNumber::NewLoan).contains(name);
    return newLoan ? NameFault::NewLoan : NameFault::None;
}

bool WorksheetStore::CanHoldLender(const QString& who) {
    return IsReadableLength(who.toStdString());
}

bool WorksheetStore::IsWorthKeeping(const CLoan& offer) {
    return !offer.Who().isEmpty() || !offer.ActualPayment().IsZero() || offer.FinancePoints() ||
           !offer.InterestRate().IsZero() || !offer.Points().IsZero() || !offer.Costs().IsZero();
}

QStringList WorksheetStore::Names() const {
    const std::vector<std::string> keys = m_store.GetSubKeys(StoreRoot, BaseKey);
    QStringList names;
    for (const std::string& key : keys) {
        names.append(QString::fromStdString(key));
    }
    // The placeholder for "none" has more blanks than any name can have.
    if (names.size() == 1 && names.front() == QString(qsizetype{NoSubkeysLength}, u' ')) {
        names.clear();
    }
    return names;
}

void WorksheetStore::Save(Worksheet& worksheet) const {
    const auto key = KeyOf(worksheet.LoanName());
    if (!key) {
        throw StoreFailure(StoreTrouble::Unknown);
    }
    m_store.InTransaction([&](const RegistryAPI& store) {
        // Delete the whole key first, so that no offer of an earlier, longer save remains.
        store.DeleteKey(StoreRoot, *key);
        store.CreateKey(StoreRoot, *key);
        Write(store, *key, worksheet);
    });
    worksheet.ClearDirty();
}

LoadOutcome WorksheetStore::Load(Worksheet& worksheet, const QString& name,
                                 const std::function<void(Row)>& growTo) const {
    const auto key = KeyOf(name);
    StoredWorksheet loaded(worksheet.Texts().Formats());
    LoadOutcome outcome;
    outcome.trouble = m_store.ReadInTransaction([&](const RegistryAPI& store) {
        outcome.exists = key && store.KeyExists(StoreRoot, *key);
        if (outcome.exists) {
            loaded.Read(store, *key);
            outcome.incomplete = store.GetValueType(StoreRoot, *key, IncompleteName) != 0;
        }
    });
    outcome.exists = outcome.exists && outcome.trouble == StoreTrouble::None;
    if (outcome.exists) {
        outcome.failures = loaded.Put(worksheet, name, growTo);
    }
    return outcome;
}

/// A store that cannot be read looks empty, so only a committed transaction proves the deletion.
void WorksheetStore::Delete(const QString& name) const {
    const auto key = KeyOf(name);
    if (!key) {
        return;
    }
    m_store.InTransaction([&](const RegistryAPI& store) {
        store.DeleteKey(StoreRoot, *key);
        if (store.KeyExists(StoreRoot, *key)) {
            throw StoreFailure(StoreTrouble::Unknown);
        }
    });
}

} // namespace quend::storage
