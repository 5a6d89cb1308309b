// Using the program's dialogs through their real controls, as a person does.
#pragma once

#include <QtGui/QImage>
#include <QtWidgets/QWidget>
#include <functional>
#include <string>
#include <vector>

#include "support/handheld.h"

// The dialog that is open.
class OpenDialog {
public:
    explicit OpenDialog(Handheld& handheld);

    // Whether it is still open.
    bool IsOpen() const;
    std::string Title() const;

    void Tap(int control);
    void TapLine(int list, int line);
    void TapTab(int tabs, int tab);
    // A place that no control covers, in the logical pixels of the dialog.
    void TapAt(int x, int y);
    void TapTitleOk();
    // A key for whatever has the focus.
    void Press(int key);
    void Type(int edit, const QString& text);

    template <typename WidgetType>
    WidgetType* Find(int control) const {
        return qobject_cast<WidgetType*>(Widget(control));
    }
    std::vector<std::string> Lines(int list) const;
    // -1 when none is selected.
    int SelectedLine(int list) const;
    bool HasFocus(int control) const;
    // What the dialog itself has drawn, under its controls.
    QImage Drawn() const;

    // The stylus touches one place of the widget and is lifted at another.
    void Drag(QWidget* widget, QPointF from, QPointF to);

private:
    QWidget* Widget(int control) const;
    void Click(QWidget* widget, QPointF place);

    Handheld& handheld;
    HWND window;
};

// Opens a dialog by whatever `open` does and uses it; what is still open then is closed by the OK
// in its title bar. Fails when no dialog opens.
void UseDialog(Handheld& handheld, const std::function<void()>& open,
               const std::function<void(OpenDialog&)>& use);
// Opens it by its command.
void UseDialog(Handheld& handheld, int command, const std::function<void(OpenDialog&)>& use);
