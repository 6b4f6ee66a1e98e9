#include "PrinterPart.h"
#include "Failure.h"
#include "PrinterOfPart.h"

#include <QPluginLoader>
#include <QString>

#include <gtest/gtest.h>

namespace {

TEST(PrinterPart, KnowsThePrintersFromALibraryOfItsOwn) {
    QPluginLoader library(QStringLiteral(QUEND_PROGRAM_DIR "/Loan.Printers"));
    const auto* part = qobject_cast<PrinterPart*>(library.instance());
    ASSERT_NE(part, nullptr) << library.errorString().toStdString();
    const auto door = part->Printers([](int /*number*/) { return QString(); });
    EXPECT_FALSE(door->PageSpace().isEmpty());
}

// The tests' folder has none of the program's plugins.
TEST(PrinterPart, MissingIsAFailure) {
    PrinterOfPart printer;
    EXPECT_THROW(printer.PageSpace(), ComponentFailure);
}

} // namespace
