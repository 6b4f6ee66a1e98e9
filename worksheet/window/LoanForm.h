#pragma once

// The generated form of the main window, for other folders: AUTOUIC would look for a form in their
// own folder if they included a "ui_" header directly.
#include "ui_Loan.h"
