#pragma once

#include <QIcon>

namespace quend::extras {

/// The program's icon in its sizes; the build draws them from icon/loan.svg.
QIcon ProgramIcon();

} // namespace quend::extras
