#pragma once

#include <QIcon>

/// The program's icon in its sizes; icon/loan.svg is what they are drawn from.
QIcon ProgramIcon();
