#include "WorksheetStore.h"

#include "Language.h"
#include "RegistryLimits.h"
#include "StoreNames.h"
#include "StoredWorksheet.h"
#include "TextNumbers.h"
#include "WorksheetValues.h"

#include <algorithm>
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

/// Adds the values of the loan, or of the offer with this prefix; `valueOf` gives that of a field.
template <class ValueOf>
void AddValues(AllValues& added, const std::string& prefix, const StoredTexts& texts,
               std::span<const KeptValue> values, ValueOf valueOf) {
    for (const KeptValue& kept : values) {
        const FieldValue value = valueOf(kept.field);
        if (kept.written == Written::Always || !IsZero(value)) {
            added.push_back({prefix + kept.name, kept.type, ToStored(value, texts)});
        }
    }
}

/// Deletes the whole key first, so that no offer of an earlier, longer save remains.
void Replace(const RegistryAPI& store, const std::string& key, const AllValues& values) {
    store.DeleteKey(StoreRoot, key);
    store.CreateKey(StoreRoot, key);
    for (const NamedValue& value : values) {
        store.SetValue(StoreRoot, key, value.name, value.type, value.value);
    }
}

/// A store that cannot be read looks empty, so only a committed transaction proves the deletion.
void Remove(const RegistryAPI& store, const std::string& key) {
    store.DeleteKey(StoreRoot, key);
    if (store.KeyExists(StoreRoot, key)) {
        throw StoreFailure(StoreTrouble::Unknown);
    }
}

/// Throws for an invalid name.
std::string NeededKeyOf(const QString& name) {
    const auto key = KeyOf(name);
    return key ? *key : throw StoreFailure(StoreTrouble::Unknown);
}

/// The worksheet repeats its name in a value.
AllValues WithName(AllValues values, const QString& name) {
    for (NamedValue& value : values) {
        if (value.name == LoanNameName) {
            value = {LoanNameName, RegistryType::Text, name.toStdString()};
        }
    }
    return values;
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

bool WorksheetStore::Holds(const QString& name) const {
    const auto key = KeyOf(name);
    return key && m_store.KeyExists(StoreRoot, *key);
}

AllValues WorksheetStore::ValuesOf(const Worksheet& worksheet) {
    const StoredTexts texts(worksheet.Texts().Formats());
    AllValues values;
    AddValues(values, "", texts, KeptWorksheetValues(),
              [&](FieldId field) { return worksheet.Value({field}); });
    std::int32_t count = 0;
    for (OfferIndex offer{0}; offer.value < worksheet.OfferCount(); ++offer.value) {
        if (IsWorthKeeping(worksheet.Offer(offer))) {
            AddValues(values, OfferPrefix(++count), texts, KeptOfferValues(),
                      [&](FieldId field) { return worksheet.Value(field, offer); });
        }
    }
    values.push_back({LoanCountName, RegistryType::Number, count});
    values.push_back({DateFormatName, RegistryType::Text, texts.DateFormat()});
    std::ranges::sort(values, {}, &NamedValue::name);
    return values;
}

SaveResult WorksheetStore::Save(Worksheet& worksheet, const AllValues& known) const {
    const std::string key = NeededKeyOf(worksheet.LoanName());
    SaveResult outcome{ValuesOf(worksheet), {}};
    m_store.InTransaction([&](const RegistryAPI& store) {
        const AllValues before = store.GetValues(StoreRoot, key);
        outcome.lost = before == known || before == outcome.written ? AllValues() : before;
        Replace(store, key, outcome.written);
    });
    worksheet.ClearDirty();
    return outcome;
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
            outcome.stored = store.GetValues(StoreRoot, *key);
        }
    });
    outcome.exists = outcome.exists && outcome.trouble == StoreTrouble::None;
    if (outcome.exists) {
        outcome.failures = loaded.Put(worksheet, name, growTo);
    }
    return outcome;
}

LoadOutcome WorksheetStore::Load(Worksheet& worksheet, const QString& name, const AllValues& values,
                                 const std::function<void(Row)>& growTo) {
    StoredWorksheet loaded(worksheet.Texts().Formats());
    loaded.Read(values);
    LoadOutcome outcome;
    outcome.exists = true;
    outcome.failures = loaded.Put(worksheet, name, growTo);
    outcome.stored = values;
    return outcome;
}

AllValues WorksheetStore::Delete(const QString& name) const {
    const auto key = KeyOf(name);
    AllValues deleted;
    if (key) {
        m_store.InTransaction([&](const RegistryAPI& store) {
            deleted = store.GetValues(StoreRoot, *key);
            Remove(store, *key);
        });
    }
    return deleted;
}

AllValues WorksheetStore::Restore(const QString& name, const AllValues& values) const {
    const std::string key = NeededKeyOf(name);
    AllValues replaced;
    m_store.InTransaction([&](const RegistryAPI& store) {
        replaced = store.GetValues(StoreRoot, key);
        Replace(store, key, values);
    });
    return replaced == values ? AllValues() : replaced;
}

RenameOutcome WorksheetStore::Rename(const QString& from, const QString& to) const {
    const auto old = KeyOf(from);
    const std::string key = NeededKeyOf(to);
    const bool sameKey = from.compare(to, Qt::CaseInsensitive) == 0;
    RenameOutcome outcome;
    m_store.InTransaction([&](const RegistryAPI& store) {
        outcome = {RenameOutcome::Kind::Missing, {}, {}};
        if (!old || !store.KeyExists(StoreRoot, *old)) {
            return;
        }
        if (!sameKey && store.KeyExists(StoreRoot, key)) {
            outcome.kind = RenameOutcome::Kind::Taken;
            return;
        }
        outcome.kind = RenameOutcome::Kind::Renamed;
        outcome.before = store.GetValues(StoreRoot, *old);
        outcome.after = WithName(outcome.before, to);
        Remove(store, *old);
        if (store.KeyExists(StoreRoot, key)) { // equal for Qt, but not for the store
            Replace(store, *old, outcome.before);
            outcome.kind = RenameOutcome::Kind::Taken;
            return;
        }
        Replace(store, key, outcome.after);
    });
    return outcome;
}

} // namespace quend::storage
