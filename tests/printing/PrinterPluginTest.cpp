#include "PrinterPlugin.h"
#include "Failure.h"
#include "QuendNames.h"

#include <QPluginLoader>
#include <QString>

#include <gtest/gtest.h>

namespace {

TEST(PrinterPlugin, GetsPrintersFromASeparateLibrary) {
    QPluginLoader library(QStringLiteral(QUEND_PROGRAM_DIR "/Loan.Printers"));
    const auto* part = qobject_cast<PrinterPlugin*>(library.instance());
    ASSERT_NE(part, nullptr) << library.errorString().toStdString();
    const auto printer = part->Printers([](int /*number*/) { return QString(); });
    EXPECT_FALSE(printer->PageSpace().isEmpty());
}

// The tests' folder has none of the program's plugins.
TEST(PrinterPlugin, MissingIsAFailure) {
    PrinterOfPlugin printer;
    EXPECT_THROW(printer.PageSpace(), ComponentFailure);
}

} // namespace
