#include "platform/qt/dialogs/dialog_view.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <algorithm>
#include <utility>

#include "platform/dialogs.h"
#include "platform/qt/common/screen_geometry.h"
#include "platform/qt/controls/dialog_look.h"
#include "platform/qt/host/host_window.h"
#include "platform/windows.h"

namespace {

// Of a group of radio buttons only the selected one is on the way of the Tab key.
bool TakesTab(const QWidget* widget) {
    if ((widget->focusPolicy() & Qt::TabFocus) == 0 || !widget->isEnabled()) {
        return false;
    }
    const auto* radio = qobject_cast<const QRadioButton*>(widget);
    return radio == nullptr || radio->isChecked();
}

}  // namespace

DialogView::DialogView(QWidget* host, HWND dialog, std::function<void()> place)
    : ClientView(host, dialog), placeControls(std::move(place)) {
    // A tap beside the controls leaves the focus where it is.
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_InputMethodEnabled, false);
}

bool DialogView::HasFocusInside() const {
    const QWidget* focus = Host().focusWidget();
    return focus != this && isAncestorOf(focus);
}

bool DialogView::MoveFocus(bool forward) {
    QList<QWidget*> stops = findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    if (!forward) {
        std::reverse(stops.begin(), stops.end());
    }
    const auto current = std::find_if(stops.begin(), stops.end(), [](const QWidget* stop) {
        return stop == Host().focusWidget();
    });
    if (current != stops.end()) {
        std::rotate(stops.begin(), current + 1, stops.end());
    }
    const auto next = std::find_if(stops.begin(), stops.end(), TakesTab);
    if (next != stops.end()) {
        (*next)->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    }
    return next != stops.end();
}

bool DialogView::focusNextPrevChild(bool next) {
    return MoveFocus(next);
}

void DialogView::resizeEvent(QResizeEvent*) {
    setStyleSheet(DialogStyleSheet(ScreenMagnification()));
    placeControls();
}

void DialogView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Escape: SendMessageW(ShownWindow(), WM_COMMAND, IDOK, 0); break;
        case Qt::Key_Return:
        case Qt::Key_Enter: PressDefaultButton(); break;
        case Qt::Key_Tab: MoveFocus(true); break;
        case Qt::Key_Backtab: MoveFocus(false); break;
        default: event->ignore();
    }
}

void DialogView::keyReleaseEvent(QKeyEvent* event) {
    event->ignore();
}

void DialogView::PressDefaultButton() {
    for (auto* button : findChildren<QPushButton*>(Qt::FindDirectChildrenOnly)) {
        if (button->isDefault() && button->isEnabled()) {
            button->click();
            return;
        }
    }
    SendMessageW(ShownWindow(), WM_COMMAND, IDOK, 0);
}
