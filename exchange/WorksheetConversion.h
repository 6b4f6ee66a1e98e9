#pragma once

#include "ExchangeNames.h"
#include "Failure.h"
#include "Field.h"
#include "WorksheetFile.h"

#include <functional>
#include <vector>

namespace quend::model {
class Worksheet;
}

namespace quend::exchange {

/// What a file keeps of a worksheet: its inputs, and the offers in the order of entry up to the
/// last that is not blank. The purpose of the loan is written in English. There is no loan held
/// today where nothing but its next payment is entered, because that date is preset.
WorksheetInFile ToFile(const Worksheet& worksheet);

/// Replaces the contents of the worksheet by those of a file, as loading a saved one does, and
/// computes its results once. Returns the failures of values that could not be stored or computed;
/// their sources are the members of the file. `growTo` is called with the last row needed when
/// there are offers; it may add fewer.
std::vector<Failure> PutFile(const WorksheetInFile& file, Worksheet& worksheet,
                             const std::function<void(Row)>& growTo);

} // namespace quend::exchange
