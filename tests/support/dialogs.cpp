#include "support/dialogs.h"

#include <gtest/gtest.h>

#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QTabBar>

#include "app/view.h"
#include "platform/dialogs.h"
#include "platform/qt/common/screen_geometry.h"
#include "platform/qt/host/host_window.h"
#include "platform/qt/screen/title_bar.h"
#include "platform/qt/window/window.h"
#include "support/menus.h"
#include "support/message_boxes.h"

void UseDialog(Handheld& handheld, const std::function<void()>& open,
               const std::function<void(OpenDialog&)>& use) {
    bool used = false;
    UseNextDialog([&] {
        used = true;
        // Arrow keys ask the application where the focus is.
        QApplication::setActiveWindow(&Host());
        handheld.Settle();
        OpenDialog dialog(handheld);
        use(dialog);
        if (dialog.IsOpen()) {
            dialog.TapTitleOk();
        }
        // Its loop waits for a message that was handled here already.
        PostMessageW(TopWindow(), 0, 0, 0);
    });
    open();
    handheld.Settle();
    EXPECT_TRUE(used);
}

void UseDialog(Handheld& handheld, int command, const std::function<void(OpenDialog&)>& use) {
    const auto open = [command] {
        PostMessageW(MainWindow, WM_COMMAND, static_cast<WPARAM>(command), 0);
    };
    UseDialog(handheld, open, use);
}

OpenDialog::OpenDialog(Handheld& its) : handheld(its), window(TopWindow()) {
    EXPECT_TRUE(window->isDialog);
}

bool OpenDialog::IsOpen() const {
    return IsLiveWindow(window) && window->visible;
}

std::string OpenDialog::Title() const {
    return QString::fromStdU16String(window->title).toStdString();
}

QWidget* OpenDialog::Widget(int control) const {
    auto* widget = window->widget->findChild<QWidget*>(QString::number(control));
    EXPECT_NE(widget, nullptr) << control;
    return widget;
}

void OpenDialog::Drag(QWidget* widget, QPointF from, QPointF to) {
    DragOver(widget, from, to);
    handheld.Settle();
}

void OpenDialog::Tap(int control) {
    QWidget* widget = Widget(control);
    if ((widget->focusPolicy() & Qt::ClickFocus) != 0) {
        widget->setFocus(Qt::MouseFocusReason);
    }
    Click(widget, QPointF(widget->height() / 2.0, widget->height() / 2.0));
}

void OpenDialog::Click(QWidget* widget, QPointF place) {
    Drag(widget, place, place);
}

void OpenDialog::TapLine(int list, int line) {
    auto* widget = Find<QListWidget>(list);
    ASSERT_LT(line, widget->count());
    widget->scrollToItem(widget->item(line));
    Click(widget->viewport(), widget->visualItemRect(widget->item(line)).center());
}

void OpenDialog::TapTab(int tabs, int tab) {
    auto* widget = Find<QTabBar>(tabs);
    Click(widget, widget->tabRect(tab).center());
}

void OpenDialog::TapAt(int x, int y) {
    const double magnification = ScreenMagnification();
    Click(window->widget, QPointF((x + 0.5) * magnification, (y + 0.5) * magnification));
}

void OpenDialog::TapTitleOk() {
    auto* button = Host().findChild<TitleBar*>()->findChild<QAbstractButton*>();
    Click(button, button->rect().center());
}

void OpenDialog::Press(int key) {
    PressFocusedKey(handheld, key);
}

void OpenDialog::Type(int edit, const QString& text) {
    Widget(edit)->setFocus(Qt::TabFocusReason);
    QTest::keyClicks(Widget(edit), text);
    handheld.Settle();
}

std::vector<std::string> OpenDialog::Lines(int list) const {
    std::vector<std::string> lines;
    const auto* widget = Find<QListWidget>(list);
    for (int line = 0; line < widget->count(); ++line) {
        lines.push_back(widget->item(line)->text().toStdString());
    }
    return lines;
}

int OpenDialog::SelectedLine(int list) const {
    return Find<QListWidget>(list)->currentRow();
}

bool OpenDialog::HasFocus(int control) const {
    return Host().focusWidget() == Widget(control);
}

QImage OpenDialog::Drawn() const {
    return window->surface->Image().copy();
}
