#pragma once

#include "Failure.h"
#include "RegistryAPI.h"
#include "Worksheet.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

/// The worksheets that are kept, by name: one key of the user's store for each, below the
/// program's own. It asks nothing, shows nothing and leaves Dirty to its callers, but for the two
/// that say so.
class LoanStore {
public:
    explicit LoanStore(RegistryAPI store) : m_store(std::move(store)) {}

    /// A name counts as empty when it is one blank, too.
    static bool IsEmptyName(const QString& name);
    /// Whether the name can be a key, and cannot be taken for the entry of a new loan in any
    /// language.
    static bool CanHold(const QString& name);
    /// Whether a text about a lender can be read back whole.
    static bool CanHoldLender(const QString& who);
    /// Whether an offer is worth keeping. Its term alone does not make it so.
    static bool IsWorthKeeping(const CLoan& offer);

    /// In the order of the store; empty when there are none.
    QStringList Names() const;
    bool Exists(const QString& name) const;

    /// Keeps the worksheet, its offers in the order of entry, under its name in one step, in place
    /// of what had that name; clears Dirty. Throws Failure 1001 when it could not be kept: all is
    /// then as it was before.
    void Save(Worksheet& worksheet) const;

    /// Replaces the worksheet by the one kept under this name and clears Dirty. `growTo` is called
    /// when there are more offers than rows, with the last row wanted; it may add fewer. A value
    /// that cannot be read is left out; those failures are returned, their sources the values'
    /// names. Does not throw.
    std::vector<Failure> Load(Worksheet& worksheet, const QString& name,
                              const std::function<void(Row)>& growTo) const;

    /// False when the worksheet is still there.
    bool Delete(const QString& name) const;

private:
    RegistryAPI m_store;
};
