#pragma once

#include "Comparison.h"
#include "RandomCases.h"

/// A worksheet of 1 to 16 offers as users enter them, with every choice of payment, and often a
/// loan held today. Occasionally an offer lacks a value, so that it is left out. Amounts are in
/// whole cents, from 1,000 to 10 million.
quend::comparison::ComparisonInput RandomWorksheet(Random& random);
