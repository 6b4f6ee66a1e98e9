#pragma once

#include <QString>

/// Makes a printer the one that this user's programs start from, where the printing system keeps
/// such a choice; else nothing happens. A printer that is not there is not chosen.
void ChooseUserPrinter(const QString& name);
