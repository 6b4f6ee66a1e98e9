#pragma once

#include "Failure.h"
#include "RegistryAPI.h"
#include "Worksheet.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

/// Why no worksheet can have a name.
enum class NameFault {
    None,
    Empty,  ///< one blank counts as empty, too
    NoKey,  ///< too long, no whole characters, or with a backslash or a NUL in it
    NewLoan ///< it reads like the entry for a new loan in some language
};

/// What became of a loading.
struct LoadOutcome {
    bool exists = false;
    StoreTrouble trouble = StoreTrouble::None; ///< why that is not known
    bool incomplete = false;       ///< a repair of the store has lost some of its values
    std::vector<Failure> failures; ///< of values left out; the sources are the values' names
};

/// The worksheets that are kept, by name: one key of the user's store for each, below the
/// program's own. It asks nothing, shows nothing and leaves Dirty to its callers, but for the two
/// that say so.
class LoanStore {
public:
    explicit LoanStore(RegistryAPI store) : m_store(std::move(store)) {}

    /// What keeps a worksheet from being saved under the name.
    static NameFault FaultOf(const QString& name);
    /// Whether a worksheet can be kept under the name at all. The others name none: nothing exists,
    /// is loaded or deleted under them. What reads like the entry for a new loan may have been
    /// saved before that language was there.
    static bool CanBeKept(const QString& name);
    /// Whether a text about a lender can be read back whole.
    static bool CanHoldLender(const QString& who);
    /// Whether an offer is worth keeping. Its term alone does not make it so.
    static bool IsWorthKeeping(const CLoan& offer);

    /// In the order of the store; empty when there are none.
    QStringList Names() const;
    bool Exists(const QString& name) const;

    /// Keeps the worksheet, its offers in the order of entry, under its name in one step, in place
    /// of what had that name; clears Dirty. Throws StoreFailure when it could not be kept: all is
    /// then as it was before.
    void Save(Worksheet& worksheet) const;

    /// Replaces the worksheet by the one kept under this name and clears Dirty. `growTo` is called
    /// when there are more offers than rows, with the last row wanted; it may add fewer. A value
    /// that cannot be read is left out. Nothing is changed where no worksheet has this name, or the
    /// store cannot be read. Does not throw.
    LoadOutcome Load(Worksheet& worksheet, const QString& name,
                     const std::function<void(Row)>& growTo) const;

    /// Does nothing where no worksheet has this name. Throws StoreFailure when the worksheet is
    /// still there, or when that cannot be made out.
    void Delete(const QString& name) const;

private:
    RegistryAPI m_store;
};
