#include "HelpPart.h"
#include "Failure.h"

#include <QPluginLoader>

#include <gtest/gtest.h>

namespace {

const QString Program = QStringLiteral(QUEND_PROGRAM_DIR);

TEST(HelpPart, OpensBooksFromALibraryOfItsOwn) {
    QPluginLoader library(Program + QStringLiteral("/Loan.Help"));
    const auto* part = qobject_cast<HelpPart*>(library.instance());
    ASSERT_NE(part, nullptr) << library.errorString().toStdString();
    const auto book = part->Open(Program + QStringLiteral("/loan000.hlp"));
    EXPECT_FALSE(book->TopicText(1006).isEmpty());
    EXPECT_THROW(part->Open(Program + QStringLiteral("/none.hlp")), Failure);
}

// The folder of the tests does not contain the program's libraries.
TEST(HelpPart, MissingIsAFailure) {
    EXPECT_THROW(OpenByPart(Program + QStringLiteral("/loan000.hlp")), ComponentFailure);
}

} // namespace
