#include <QApplication>
#include <QString>

#include <gtest/gtest.h>

namespace {

/// A Qt warning is a fault of the window, except for limits of the display.
void FailOnWarning(QtMsgType type, const QMessageLogContext& /*where*/, const QString& text) {
    if (type >= QtWarningMsg && !text.startsWith(QLatin1String("This plugin does not support"))) {
        ADD_FAILURE() << text.toStdString();
    }
}

} // namespace

int main(int argc, char* argv[]) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    ::testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    qInstallMessageHandler(FailOnWarning);
    return RUN_ALL_TESTS();
}
