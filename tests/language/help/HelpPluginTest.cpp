#include "HelpPlugin.h"
#include "Failure.h"
#include "QuendNames.h"

#include <QPluginLoader>

#include <gtest/gtest.h>

namespace {

const QString Program = QStringLiteral(QUEND_PROGRAM_DIR);

TEST(HelpPlugin, OpensHelpFilesFromASeparateLibrary) {
    QPluginLoader library(Program + QStringLiteral("/Loan.Help"));
    const auto* part = qobject_cast<HelpPlugin*>(library.instance());
    ASSERT_NE(part, nullptr) << library.errorString().toStdString();
    const auto content = part->Open(Program + QStringLiteral("/loan000.hlp"));
    EXPECT_FALSE(content->TopicText(1006).isEmpty());
    EXPECT_THROW(part->Open(Program + QStringLiteral("/none.hlp")), Failure);
}

// The folder of the tests does not contain the program's libraries.
TEST(HelpPlugin, MissingIsAFailure) {
    EXPECT_THROW(OpenByPlugin(Program + QStringLiteral("/loan000.hlp")), ComponentFailure);
}

} // namespace
