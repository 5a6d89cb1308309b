#include "platform/qt/dialogs/modal.h"

#include <QtWidgets/QDialog>

#include "platform/qt/input/tap_guard.h"
#include "platform/qt/look/look.h"
#include "platform/qt/window/endings.h"
#include "platform/qt/window/host_window.h"

QFont ModalFont() {
    constexpr double em = 10;
    return BarFont(em * Host().Magnification(), false);
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
