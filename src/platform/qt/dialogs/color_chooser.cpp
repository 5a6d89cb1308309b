// The colour chooser: the toolkit's own, with the sixteen custom colours of the program.
#include "platform/qt/dialogs/color_chooser.h"

#include <QtGui/QCloseEvent>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QColorDialog>
#include <QtWidgets/QScrollArea>

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
        Arrange();
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
    void Arrange() {
        setFont(ModalFont());
        adjustSize();
        // It fixes its own size.
        layout()->setSizeConstraint(QLayout::SetNoConstraint);
        setMinimumSize(0, 0);
        setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        FitIntoScreen(*this);
        if (isFullScreen()) {
            Narrow();
        }
    }

    // The ready colours stand above the free ones, and what has no room even so can be scrolled.
    void Narrow() {
        constexpr int margin = 4;
        layout()->setContentsMargins(margin, margin, margin, margin);
        auto* halves = qobject_cast<QBoxLayout*>(layout()->itemAt(0)->layout());
        if (halves != nullptr && width() < height()) {
            halves->setDirection(QBoxLayout::TopToBottom);
        }
        auto* content = new QWidget;
        content->setLayout(layout());
        QFont smaller = ModalFont();
        smaller.setPixelSize(smaller.pixelSize() * 4 / 5);
        content->setFont(smaller);
        auto* area = new QScrollArea;
        area->setFrameShape(QFrame::NoFrame);
        area->setWidgetResizable(true);
        area->setWidget(content);
        auto* whole = new QVBoxLayout(this);
        whole->setContentsMargins(0, 0, 0, 0);
        whole->addWidget(area);
    }

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
