// The colour chooser: the toolkit's own, with the sixteen custom colours of the program.
#include "platform/qt/dialogs/color_chooser.h"

#include <QtGui/QCloseEvent>
#include <QtWidgets/QColorDialog>

#include "platform/common_dialogs.h"
#include "platform/dialogs.h"
#include "platform/qt/dialogs/modal.h"
#include "platform/qt/host/host_window.h"
#include "platform/qt/surface/drawing_objects.h"
#include "platform/qt/window/window.h"

namespace {

constexpr int customColors = 16;

// What the hook knows the open chooser by.
Window handle;
QColorDialog* openChooser = nullptr;

COLORREF ToColorRef(const QColor& color) {
    return RGB(color.red(), color.green(), color.blue());
}

class Chooser : public QColorDialog {
public:
    explicit Chooser(const CHOOSECOLOR& its)
        : QColorDialog(QColor(ToQRgb(its.rgbResult)), &Host()), request(its) {
        setOption(QColorDialog::DontUseNativeDialog);
        openChooser = this;
    }
    ~Chooser() override {
        openChooser = nullptr;
    }

    void Tell(UINT message, WPARAM wParam) const {
        if ((request.Flags & CC_ENABLEHOOK) != 0 && request.lpfnHook != nullptr) {
            request.lpfnHook(&handle, message, wParam, 0);
        }
    }

protected:
    void done(int result) override {
        Tell(WM_COMMAND, result == Accepted ? IDOK : IDCANCEL);
        QColorDialog::done(result);
    }
    void closeEvent(QCloseEvent* event) override {
        Tell(WM_CLOSE, 0);
        QColorDialog::closeEvent(event);
    }

private:
    const CHOOSECOLOR& request;
};

void LendCustomColors(const CHOOSECOLOR& request) {
    for (int i = 0; request.lpCustColors != nullptr && i < customColors; ++i) {
        QColorDialog::setCustomColor(i, QColor(ToQRgb(request.lpCustColors[i])));
    }
}

void TakeCustomColors(const CHOOSECOLOR& request) {
    for (int i = 0; request.lpCustColors != nullptr && i < customColors; ++i) {
        request.lpCustColors[i] = ToColorRef(QColorDialog::customColor(i));
    }
}

}  // namespace

BOOL ChooseColor(CHOOSECOLOR* request) {
    LendCustomColors(*request);
    Chooser chooser(*request);
    chooser.Tell(WM_INITDIALOG, 0);
    const bool accepted = RunModal(chooser) == QDialog::Accepted;
    TakeCustomColors(*request);
    if (accepted) {
        request->rgbResult = ToColorRef(chooser.selectedColor());
    }
    return accepted;
}

BOOL EndColorChooser(HWND chooser) {
    if (openChooser == nullptr || chooser != &handle) {
        return FALSE;
    }
    openChooser->hide();
    return TRUE;
}
