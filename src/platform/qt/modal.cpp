#include "platform/qt/modal.h"

#include <QtWidgets/QDialog>

#include "platform/qt/endings.h"
#include "platform/qt/host_window.h"
#include "platform/qt/look.h"
#include "platform/qt/tap_guard.h"

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
