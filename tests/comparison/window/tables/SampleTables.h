#pragma once

#include "CompareNames.h"
#include "ComparedWorksheet.h"
#include "DisplayFormats.h"
#include "Figures.h"
#include "Language.h"
#include "QuendNames.h"

#include <QLocale>
#include <QString>

#include <optional>
#include <utility>
#include <vector>

namespace quend::compare {}
using namespace quend::compare;

inline const QLocale UnitedStates(QLocale::English, QLocale::UnitedStates);
inline const QLocale Germany(QLocale::German, QLocale::Germany);
inline const DisplayFormats Dollars(UnitedStates);

inline constexpr auto None = std::nullopt;

/// The place of a column.
inline int ColumnNumber(Figure figure) { return static_cast<int>(figure); }

inline Money Dollar(double amount) { return Money::FromDouble(amount); }

/// An offer or, under the name "today", the loan held today. Without a total cost it takes no part.
struct SampleLoan {
    QString lender;
    std::optional<double> totalCost;
    double costs = 0;
    std::optional<double> apr = {};
    std::vector<CheaperStretch> cheaper = {};
};

/// A compared worksheet of made-up figures, which need not agree with each other.
inline ComparedWorksheet SheetOf(const std::vector<SampleLoan>& loans) {
    ComparedWorksheet sheet;
    for (const SampleLoan& loan : loans) {
        const Money total = Dollar(loan.totalCost.value_or(0));
        if (loan.lender == QStringLiteral("today")) {
            sheet.result.current.emplace();
            sheet.result.current->costByHorizon = total;
            sheet.result.current->figures.emplace().totalCost = total;
            continue;
        }
        OfferInput input;
        input.rate = Rate::FromFraction(0.05);
        input.costs = Dollar(loan.costs);
        sheet.input.offers.push_back(input);
        sheet.lenders.push_back(loan.lender);
        sheet.rows.push_back(static_cast<int>(sheet.rows.size()) + 1);
        OfferComparison& result = sheet.result.offers.emplace_back();
        if (loan.totalCost) {
            result.figures.emplace().totalCost = total;
            result.figures->costByHorizon = total;
            result.figures->cheaper = loan.cheaper;
            if (loan.apr) {
                result.figures->apr = Rate::FromFraction(*loan.apr);
            }
        }
    }
    return sheet;
}

inline constexpr int English = 1;
inline constexpr int Spanish = 2;

inline void Speak(int language) {
    Language::Instance().SetUp(QStringLiteral(QUEND_PROGRAM_DIR), QStringLiteral("Loan"));
    Language::Instance().LoadLanguage(language);
}
