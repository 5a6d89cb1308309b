// Using the program's dialogs through their real controls, as a person does.
#pragma once

#include "platform/qt/screen/title_bar.h"
#include "support/menus.h"
#include "support/played_board.h"

// The dialog that is open.
class OpenDialog {
public:
    explicit OpenDialog(Handheld& its) : handheld(its), window(TopWindow()) {
        EXPECT_TRUE(window->isDialog);
    }

    // Whether it is still open.
    bool IsOpen() const {
        return IsLiveWindow(window) && window->visible;
    }

    // The stylus touches one place of the widget and is lifted at another.
    void Drag(QWidget* widget, QPointF from, QPointF to) {
        DragOver(widget, from, to);
        handheld.Settle();
    }

    void Tap(int control) {
        QWidget* widget = Widget(control);
        if ((widget->focusPolicy() & Qt::ClickFocus) != 0) {
            widget->setFocus(Qt::MouseFocusReason);
        }
        Click(widget, QPointF(widget->height() / 2.0, widget->height() / 2.0));
    }

    void TapLine(int list, int line) {
        auto* widget = Find<QListWidget>(list);
        ASSERT_LT(line, widget->count());
        widget->scrollToItem(widget->item(line));
        Click(widget->viewport(), widget->visualItemRect(widget->item(line)).center());
    }

    void TapTab(int tabs, int tab) {
        auto* widget = Find<QTabBar>(tabs);
        Click(widget, widget->tabRect(tab).center());
    }

    // A place that no control covers, in the logical pixels of the dialog.
    void TapAt(int x, int y) {
        const double magnification = ScreenMagnification();
        Click(window->widget, QPointF((x + 0.5) * magnification, (y + 0.5) * magnification));
    }

    void TapTitleOk() {
        auto* button = Host().findChild<TitleBar*>()->findChild<QAbstractButton*>();
        Click(button, button->rect().center());
    }

    // A key for whatever has the focus.
    void Press(int key) {
        PressFocusedKey(handheld, key);
    }

    void Type(int edit, const QString& text) {
        Widget(edit)->setFocus(Qt::TabFocusReason);
        QTest::keyClicks(Widget(edit), text);
        handheld.Settle();
    }

    std::vector<std::string> Lines(int list) const {
        std::vector<std::string> lines;
        const auto* widget = Find<QListWidget>(list);
        for (int line = 0; line < widget->count(); ++line) {
            lines.push_back(widget->item(line)->text().toStdString());
        }
        return lines;
    }

    bool HasFocus(int control) const {
        return Host().focusWidget() == Widget(control);
    }

    template <typename WidgetType>
    WidgetType* Find(int control) const {
        return qobject_cast<WidgetType*>(Widget(control));
    }

private:
    QWidget* Widget(int control) const {
        auto* widget = window->widget->findChild<QWidget*>(QString::number(control));
        EXPECT_NE(widget, nullptr) << control;
        return widget;
    }

    void Click(QWidget* widget, QPointF place) {
        Drag(widget, place, place);
    }

    Handheld& handheld;
    HWND window;
};

class DialogTest : public PlayedBoard {
protected:
    // Opens a dialog by whatever `open` does and uses it; what is still open then is closed by the
    // OK in its title bar. Fails when no dialog opens.
    void Use(const std::function<void()>& open, const std::function<void(OpenDialog&)>& use) {
        bool used = false;
        plans<DialogView> = {[&](DialogView*) {
            used = true;
            // Arrow keys ask the application where the focus is.
            QApplication::setActiveWindow(&Host());
            handheld->Settle();
            OpenDialog dialog(*handheld);
            use(dialog);
            if (dialog.IsOpen()) {
                dialog.TapTitleOk();
            }
            // Its loop waits for a message that was handled here already.
            PostMessageW(TopWindow(), 0, 0, 0);
        }};
        open();
        handheld->Settle();
        EXPECT_TRUE(used);
    }

    void Use(int command, const std::function<void(OpenDialog&)>& use) {
        Use([command] { PostMessageW(MainWindow, WM_COMMAND, WPARAM(command), 0); }, use);
    }
};
