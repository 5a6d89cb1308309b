#include "support/menus.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTimer>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QMenu>
#include <utility>

#include "platform/qt/host/host_window.h"
#include "support/message_boxes.h"

NextMenu::NextMenu(std::function<void(QMenu*)> planned) : use(std::move(planned)) {
    QCoreApplication::instance()->installEventFilter(this);
}

NextMenu::~NextMenu() {
    TakeOpenedMenus();
}

bool NextMenu::eventFilter(QObject* object, QEvent* event) {
    if (event->type() != QEvent::Show || !use) {
        return false;
    }
    if (auto* menu = qobject_cast<QMenu*>(object)) {
        QTimer::singleShot(0, menu, [menu, now = std::exchange(use, nullptr)] { now(menu); });
    }
    return false;
}

void SendKey(QWidget* widget, int key, Qt::KeyboardModifiers modifiers) {
    // A letter comes with its text.
    const QString text =
        key < 0x80 && modifiers == Qt::NoModifier ? QString(QChar(key)) : QString();
    for (QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers, text);
        QCoreApplication::sendEvent(widget, &event);
    }
}

namespace {

bool MoveTo(QMenu* menu, const QString& text) {
    for (qsizetype step = 0; step <= menu->actions().size(); ++step) {
        if (menu->activeAction() != nullptr && menu->activeAction()->text() == text) {
            return true;
        }
        SendKey(menu, Qt::Key_Down);
    }
    return false;
}

// Leaves the menu open when there is no such item.
bool Choose(QMenu* menu, const ItemPath& path) {
    if (!MoveTo(menu, path.first())) {
        return false;
    }
    QMenu* submenu = menu->activeAction()->menu();
    if (path.size() == 1) {
        SendKey(menu, Qt::Key_Return);
        return true;
    }
    if (submenu == nullptr) {
        return false;
    }
    SendKey(menu, Qt::Key_Right);
    return submenu->isVisible() && Choose(submenu, path.mid(1));
}

void CollectItems(const QMenu* menu, const QString& prefix, ShownMenu& shown) {
    for (const QAction* action : menu->actions()) {
        if (action->menu() != nullptr) {
            CollectItems(action->menu(), prefix + action->text() + "/", shown);
        } else if (!action->isSeparator()) {
            shown.items[prefix + action->text()] = {action->isChecked()};
        }
    }
}

}  // namespace

bool ChooseFromBar(Handheld& handheld, const QString& tooltip, const ItemPath& path) {
    bool chosen = false;
    const NextMenu next([&](QMenu* menu) { chosen = Choose(menu, path); });
    return handheld.PressButton(tooltip) && chosen;
}

bool ChooseFromContext(Handheld& handheld, POINT point, const ItemPath& path) {
    bool chosen = false;
    const NextMenu next([&](QMenu* menu) { chosen = Choose(menu, path); });
    handheld.RightClick(point.x, point.y);
    return chosen;
}

ShownMenu LookAtMenu(Handheld& handheld, const QString& tooltip) {
    QMenu* popup = nullptr;
    const NextMenu next([&](QMenu* menu) { popup = menu; });
    // The program sets the check marks while it is open.
    handheld.PressButton(tooltip);
    ShownMenu shown;
    if (popup != nullptr) {
        CollectItems(popup, "", shown);
    }
    return shown;
}

void PressFocusedKey(Handheld& handheld, int key, Qt::KeyboardModifiers modifiers) {
    if (QWidget* focus = Host().focusWidget()) {
        SendKey(focus, key, modifiers);
    }
    handheld.Settle();
}
