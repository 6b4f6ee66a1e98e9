#pragma once

#include <QStringList>

class RegistryAPI;

/// The worksheets of a store that has been repaired.
struct RepairedLoans {
    int whole = 0;
    QStringList incomplete; ///< their names: values are missing that every save writes
};

/// Looks at every worksheet, and marks those that lack a value, so that opening one says so. Its
/// next save takes the mark away. Values that are there are not judged. A store that cannot be
/// written to is left without marks.
RepairedLoans FindIncomplete(const RegistryAPI& store);
