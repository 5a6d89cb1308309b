#include "platform/qt/dialogs/modal.h"

#include <QtGui/QScreen>
#include <QtWidgets/QDialog>

#include "platform/qt/common/screen_geometry.h"
#include "platform/qt/input/tap_guard.h"
#include "platform/qt/look/fonts.h"
#include "platform/qt/window/end_request.h"

QFont ModalFont() {
    constexpr double em = 10;
    return TextFont(em * ScreenMagnification(), false);
}

void FitIntoScreen(QDialog& dialog) {
    constexpr double most = 0.9;
    const QSize room = dialog.screen()->availableSize() * most;
    if (dialog.width() > room.width() || dialog.height() > room.height()) {
        dialog.resize(dialog.screen()->size());
        dialog.setWindowState(Qt::WindowFullScreen);
    }
}

int RunModal(QDialog& dialog) {
    if (EndingAsked()) {
        return QDialog::Rejected;
    }
    dialog.setFont(ModalFont());
    GroundChanged();
    const int result = dialog.exec();
    GroundChanged();
    return result;
}
