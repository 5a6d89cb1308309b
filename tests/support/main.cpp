#include <gtest/gtest.h>

#include <QtWidgets/QApplication>
#include <iostream>

#include "support/boxes.h"
#include "support/dialogs.h"

namespace {

// The offscreen screen complains about everything that opens; nothing else is hidden.
void ShowWarning(QtMsgType, const QMessageLogContext&, const QString& text) {
    if (!text.startsWith("This plugin does not support ")) {
        std::cerr << text.toStdString() << std::endl;
    }
}

}  // namespace

int main(int argumentCount, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(ShowWarning);
    testing::InitGoogleTest(&argumentCount, arguments);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::Round);
    QApplication application(argumentCount, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    AnswerBoxes();
    WatchDialogs();
    return RUN_ALL_TESTS();
}
