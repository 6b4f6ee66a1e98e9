#pragma once

#include "Language.h"

#include <QApplication>

#include <benchmark/benchmark.h>

/// Runs the benchmarks of a program that shows the window, in English, without a screen unless the
/// environment names one.
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
