#pragma once

#include "StorageNames.h"
#include "WorksheetStore.h"

#include <QString>

#include <functional>
#include <utility>
#include <vector>

namespace quend::storage {

/// A worksheet that is no longer stored, or never was.
struct KeptWorksheet {
    QString name;
    AllValues values;
    bool wasStored = true; ///< false: it was closed unsaved
};

/// The stored worksheets as one window uses them. Knows which values the window has opened or saved
/// last, and so what a save replaces without the user having seen it; keeps that, and what is
/// deleted, in memory. Asks nothing and shows nothing. Throws what WorksheetStore throws.
class KeptWorksheets {
public:
    explicit KeptWorksheets(WorksheetStore store) : m_store(std::move(store)) {}

    QStringList Names() const { return m_store.Names(); }
    bool Holds(const QString& name) const { return m_store.Holds(name); }
    /// True when a worksheet was replaced that is now kept.
    bool Save(Worksheet& worksheet);
    LoadOutcome Load(Worksheet& worksheet, const QString& name,
                     const std::function<void(Row)>& growTo);
    /// The deleted worksheet is kept. False when no worksheet has this name.
    bool Delete(const QString& name);
    RenameOutcome::Kind Rename(const QString& from, const QString& to);
    /// The window no longer holds a stored worksheet.
    void Forget() { m_known.clear(); }

    /// What is kept, the last one at the end.
    const std::vector<KeptWorksheet>& Kept() const { return m_kept; }
    void Keep(KeptWorksheet worksheet) { m_kept.push_back(std::move(worksheet)); }
    /// Stores a kept worksheet again and keeps what it replaces instead. One that was never stored
    /// is only no longer kept.
    void BringBack(const KeptWorksheet& worksheet);

private:
    WorksheetStore m_store;
    AllValues m_known; ///< as opened or saved last
    std::vector<KeptWorksheet> m_kept;
};

} // namespace quend::storage
