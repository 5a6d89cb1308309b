
#include <climits>
#include <iostream>

#include "platform/qt/process/bring_up.h"
#include "platform/qt/window/keep_state.h"
#include "support/message_boxes.h"

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
    timeUntilKept = INT_MAX;  // tests ask for it themselves
    const auto handheld = BringHandheldUp(argumentCount, arguments);
    AnswerBoxes();
    return RUN_ALL_TESTS();
}
