#pragma once

#include "Failure.h"
#include "RegistryAPI.h"
#include "StorageNames.h"
#include "Worksheet.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace quend::storage {

/// All values of a stored worksheet, sorted by their names.
using AllValues = std::vector<NamedValue>;

/// Why a name is not allowed for a worksheet.
enum class NameFault {
    None,
    Empty,  ///< a single blank also counts as empty
    NoKey,  ///< too long, incomplete characters, or contains a backslash or NUL: nothing under such
            ///< a name exists, loads or is deleted
    NewLoan ///< equals the entry for a new loan in some language
};

/// The result of loading a worksheet.
struct LoadOutcome {
    bool exists = false;
    StoreTrouble trouble = StoreTrouble::None; ///< why it is unknown whether the worksheet exists
    bool incomplete = false;                   ///< a recovery of the store lost some of its values
    std::vector<Failure> failures; ///< of values left out; the sources are the names of the values
    AllValues stored;              ///< all values, as stored
};

/// The result of saving a worksheet.
struct SaveResult {
    AllValues written;
    AllValues lost; ///< what was stored under the name and is nowhere else now; empty: nothing
};

/// The result of renaming a stored worksheet.
struct RenameOutcome {
    enum class Kind {
        Renamed,
        Missing, ///< no worksheet has the old name
        Taken    ///< another worksheet has the new one
    };
    Kind kind = Kind::Renamed;
    AllValues before; ///< if it was renamed
    AllValues after;
};

/// The saved worksheets, by name: each has a key in the user's store, below the key of the program.
/// Asks nothing and shows nothing. Only Save and Load clear Dirty; otherwise that is the caller's
/// task.
class WorksheetStore {
public:
    explicit WorksheetStore(RegistryAPI store) : m_store(std::move(store)) {}

    /// Why a worksheet cannot be saved under the name. One under the name NewLoan may exist: it was
    /// saved before that language was added.
    static NameFault FaultOf(const QString& name);
    /// Whether a text about a lender can be read back unchanged.
    static bool CanHoldLender(const QString& who);
    /// Whether an offer is saved. A term alone is not enough.
    static bool IsWorthKeeping(const CLoan& offer);

    /// In the order of the store; empty when there are none.
    QStringList Names() const;
    /// False when the store cannot be read.
    bool Holds(const QString& name) const;

    /// Saves the worksheet under its name in one transaction, with its offers in the order of
    /// entry. Replaces the previous worksheet of that name and clears Dirty. What it replaces is
    /// not lost if it equals `known`, an earlier state of the same worksheet, or what was written.
    /// Throws StoreFailure when it could not be saved; nothing has changed then.
    SaveResult Save(Worksheet& worksheet, const AllValues& known = {}) const;

    /// Replaces the worksheet by the one saved under this name and clears Dirty. `growTo` is called
    /// with the last row needed when there are more offers than rows; it may add fewer. Values that
    /// cannot be read are left out. Nothing changes when no worksheet has this name or the store
    /// cannot be read. Does not throw.
    LoadOutcome Load(Worksheet& worksheet, const QString& name,
                     const std::function<void(Row)>& growTo) const;

    /// The same for values that are not stored under a name. The result says that it exists.
    static LoadOutcome Load(Worksheet& worksheet, const QString& name, const AllValues& values,
                            const std::function<void(Row)>& growTo);

    /// Returns what was deleted; nothing when no worksheet has this name. Throws StoreFailure when
    /// the worksheet still exists, or when that cannot be determined.
    AllValues Delete(const QString& name) const;

    /// Stores the values under this name and returns what they replaced, if it differs; else
    /// nothing. Throws StoreFailure; nothing has changed then.
    AllValues Restore(const QString& name, const AllValues& values) const;

    /// Gives a stored worksheet another name, for which FaultOf finds no fault. The names may
    /// differ in case only. Throws StoreFailure; nothing has changed then.
    RenameOutcome Rename(const QString& from, const QString& to) const;

    /// The values that a save of the worksheet writes.
    static AllValues ValuesOf(const Worksheet& worksheet);

private:
    RegistryAPI m_store;
};

} // namespace quend::storage
