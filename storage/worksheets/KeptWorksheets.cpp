#include "KeptWorksheets.h"

#include "StoreNames.h"

#include <algorithm>
#include <utility>

namespace quend::storage {

namespace {

/// The name as stored, which may differ in case from the one that found it.
QString NameIn(const AllValues& values, const QString& name) {
    const auto stored = std::ranges::find(values, LoanNameName, &NamedValue::name);
    if (stored == values.end() || stored->type != RegistryType::Text) {
        return name;
    }
    const QString text = QString::fromStdString(std::get<std::string>(stored->value));
    return text.compare(name, Qt::CaseInsensitive) == 0 ? text : name;
}

} // namespace

bool KeptWorksheets::Save(Worksheet& worksheet) {
    SaveResult outcome = m_store.Save(worksheet, m_known);
    m_known = std::move(outcome.written);
    if (outcome.lost.empty()) {
        return false;
    }
    const QString name = NameIn(outcome.lost, worksheet.LoanName());
    Keep({name, std::move(outcome.lost)});
    return true;
}

LoadOutcome KeptWorksheets::Load(Worksheet& worksheet, const QString& name,
                                 const std::function<void(Row)>& growTo) {
    LoadOutcome outcome = m_store.Load(worksheet, name, growTo);
    if (outcome.exists) {
        m_known = outcome.stored;
    }
    return outcome;
}

bool KeptWorksheets::Delete(const QString& name) {
    AllValues deleted = m_store.Delete(name);
    if (deleted.empty()) {
        return false;
    }
    const QString stored = NameIn(deleted, name);
    Keep({stored, std::move(deleted)});
    return true;
}

RenameOutcome::Kind KeptWorksheets::Rename(const QString& from, const QString& to) {
    RenameOutcome outcome = m_store.Rename(from, to);
    if (outcome.kind == RenameOutcome::Kind::Renamed && m_known == outcome.before) {
        m_known = std::move(outcome.after);
    }
    return outcome.kind;
}

void KeptWorksheets::BringBack(const KeptWorksheet& worksheet) {
    const KeptWorksheet back = worksheet; // it may be one of those erased
    AllValues replaced;
    if (back.wasStored) {
        replaced = m_store.Restore(back.name, back.values);
    }
    std::erase_if(m_kept, [&](const KeptWorksheet& kept) {
        return kept.name == back.name && kept.values == back.values;
    });
    if (!replaced.empty()) {
        const QString name = NameIn(replaced, back.name);
        Keep({name, std::move(replaced)});
    }
}

} // namespace quend::storage
