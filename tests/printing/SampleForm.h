#pragma once

#include "QuendNames.h"
#include "ReportInput.h"

#include <cstddef>

/// A window 1,000 pixels wide on a screen of one pixel per point, so that on a page of 20,000 twips
/// everything keeps its size. Its fields show their own names.
ReportInput SampleForm(int rows);

/// The row's texts are "<row>.<column>"; the tick boxes of odd rows are ticked.
FormRow SampleRow(int row);

inline constexpr double SampleWidth = 1000;
inline constexpr std::size_t SampleColumns = 11;
