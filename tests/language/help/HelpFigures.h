#pragma once

#include "Date.h"
#include "Money.h"
#include "Quantities.h"
#include "QuendNames.h"

#include <QString>

#include <map>
#include <string>
#include <variant>

/// What an example in the help computes; a number counts months.
using HelpFigure = std::variant<Money, Date, Rate, int>;

/// The figures of the examples in the help, which begin on 2 January 2026. A loan's are named
/// "example.result", those of a comparison "comparison.example.result".
class HelpFigures {
public:
    HelpFigures();

    /// A figure, or the difference of two amounts, "figure-figure", as a reader would compute it.
    /// An unknown name fails the test.
    HelpFigure Of(const QString& name) const;

private:
    HelpFigure Single(const QString& name) const;

    std::map<std::string, HelpFigure> m_figures;
};
