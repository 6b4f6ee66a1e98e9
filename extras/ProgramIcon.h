#pragma once

#include <QIcon>

/// The program's icon in its sizes; the build draws them from icon/loan.svg.
QIcon ProgramIcon();
