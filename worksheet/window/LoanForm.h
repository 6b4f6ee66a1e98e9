#pragma once

// The controls of the main window as the Designer form makes them, for those outside this floor:
// the build looks for a form of their own behind every include of a "ui_" header.
#include "ui_Loan.h"
