#include "platform/qt/host/client_view.h"

#include <QtGui/QInputMethodEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>

#include "platform/qt/common/message_queue.h"
#include "platform/qt/common/screen_geometry.h"
#include "platform/qt/input/key_codes.h"
#include "platform/qt/input/stylus.h"
#include "platform/qt/window/window.h"

ClientView::ClientView(QWidget* host, HWND shown) : QWidget(host), window(shown) {
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_InputMethodEnabled);
    setAttribute(Qt::WA_OpaquePaintEvent);
    // A right click is the stylus, too; nothing above this widget is to take it for itself.
    setContextMenuPolicy(Qt::PreventContextMenu);
    hide();
}

void ClientView::ShowArea(const RECT& area) {
    update(ExactPlace(OnScreen(window, area)).toAlignedRect().translated(-pos()));
}

void ClientView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.translate(ExactPlace(window->frame).topLeft() - QPointF(pos()));
    painter.scale(1 / devicePixelRatioF(), 1 / devicePixelRatioF());
    window->surface->Paint(painter);
    emit Painted();
}

POINT ClientView::ClientPoint(const QMouseEvent* event) const {
    POINT point = LogicalPoint(mapToParent(event->position()));
    point.x -= window->frame.left;
    point.y -= window->frame.top;
    return point;
}

void ClientView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton || event->button() == Qt::RightButton) {
        StylusPressed(window, ClientPoint(event), event->button() == Qt::RightButton);
    }
}

// The second press of a quick pair is a tap like any other.
void ClientView::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
}

void ClientView::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons() & Qt::LeftButton) {
        StylusMoved(window, ClientPoint(event));
    }
}

void ClientView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        StylusReleased(window, ClientPoint(event));
    }
}

void ClientView::keyPressEvent(QKeyEvent* event) {
    constexpr auto shortcutModifiers = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    // A lone press of Alt opens the menu bar when it is let go.
    altAlone = event->key() == Qt::Key_Alt && event->modifiers() == Qt::AltModifier;
    if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::NoModifier) {
        emit MenuBarAsked();
        return;
    }
    const int key = VirtualKey(*event);
    if (key == 0) {
        event->ignore();
        return;
    }
    // Ctrl and a letter is a command or nothing, never a letter in the grid.
    const bool held = event->modifiers() & shortcutModifiers;
    const UINT message = held ? WM_SYSKEYDOWN : WM_KEYDOWN;
    PostMessage({{window, message, static_cast<WPARAM>(key), 0},
                 (event->modifiers() & ~Qt::KeypadModifier) == Qt::ControlModifier});
}

void ClientView::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Alt && altAlone) {
        emit MenuBarAsked();
    }
    altAlone = false;
}

// Alt and Tab leave the program with Alt held down.
void ClientView::focusOutEvent(QFocusEvent*) {
    altAlone = false;
}

// Tab is no key of the game and must not carry the focus away from the board.
bool ClientView::focusNextPrevChild(bool) {
    return false;
}

void ClientView::inputMethodEvent(QInputMethodEvent* event) {
    for (int key : VirtualKeys(event->commitString())) {
        PostMessage({{window, WM_KEYDOWN, static_cast<WPARAM>(key), 0}});
    }
    event->accept();
}

// A phone's keyboard opens with plain letters.
QVariant ClientView::inputMethodQuery(Qt::InputMethodQuery query) const {
    if (query == Qt::ImHints) {
        return static_cast<int>(Qt::ImhLatinOnly | Qt::ImhUppercaseOnly | Qt::ImhNoPredictiveText);
    }
    return QWidget::inputMethodQuery(query);
}
