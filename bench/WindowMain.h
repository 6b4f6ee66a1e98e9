#pragma once

#include "Language.h"
#include "QuendNames.h"

#include <QApplication>

#include <benchmark/benchmark.h>

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
