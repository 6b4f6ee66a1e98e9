#include "KeptWorksheets.h"

#include <utility>

namespace quend::storage {

bool KeptWorksheets::Save(Worksheet& worksheet) {
    SaveResult outcome = m_store.Save(worksheet, m_known);
    m_known = std::move(outcome.written);
    if (outcome.lost.empty()) {
        return false;
    }
    Keep({worksheet.LoanName(), std::move(outcome.lost)});
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
    Keep({name, std::move(deleted)});
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
        Keep({back.name, std::move(replaced)});
    }
}

} // namespace quend::storage
