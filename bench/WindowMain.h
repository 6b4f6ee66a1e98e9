#pragma once

#include "EnterValues.h"
#include "FakeMessages.h"
#include "Language.h"
#include "Loan.h"
#include "OfferRows.h"
#include "QuendNames.h"
#include "Worksheet.h"

#include <QApplication>

#include <benchmark/benchmark.h>

inline Loan::World BenchWorld(FakeMessages& messages) {
    return {.messages = &messages,
            .locale = QLocale(QLocale::English, QLocale::UnitedStates),
            .today = [] { return Date::FromCalendar(2026, 11, 21); }};
}

/// Offers of 30 years, monthly, each at a higher rate.
inline void FillOffers(Loan& window, int offers) {
    window.Rows().GrowTo(Row{offers - 1});
    Worksheet& sheet = window.GetWorksheet();
    sheet.SetLoanAmount(Money::FromDouble(250'000));
    for (Row row{0}; row < Row{offers}; ++row.value) {
        EnterOffer(sheet, row,
                   {{FieldId::Term, Months{360}},
                    {FieldId::InterestRate, Rate::FromFraction(0.055 + 0.00125 * row.value)},
                    {FieldId::Frequency, FrequencyCode(QStringLiteral("M"))}});
    }
}

/// Runs benchmarks that show the window, in English, offscreen unless the environment names a
/// platform.
inline int RunWindowBenchmarks(int argc, char* argv[]) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    Language::Instance().SetUp(QStringLiteral(QUEND_PROGRAM_DIR), QStringLiteral("Loan"));
    Language::Instance().LoadLanguage(1);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
