#include "platform/qt/modal.h"

#include <QtWidgets/QDialog>

#include "platform/qt/endings.h"
#include "platform/qt/host_window.h"
#include "platform/qt/look.h"

int RunModal(QDialog& dialog) {
    if (EndingAsked()) {
        return QDialog::Rejected;
    }
    constexpr double em = 10;
    dialog.setFont(BarFont(em * Host().Magnification(), false));
    return dialog.exec();
}
