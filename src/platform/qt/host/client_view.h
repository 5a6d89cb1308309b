// The widget that shows one window of the program and turns the host's input into its messages.
#pragma once

#include <QtWidgets/QWidget>

#include "platform/types.h"

class ClientView : public QWidget {
    Q_OBJECT

public:
    ClientView(QWidget* host, HWND window);

    HWND ShownWindow() const {
        return window;
    }
    void ShowArea(const RECT& area);

signals:
    // A key asks for the menu bar.
    void MenuBarAsked();
    void Painted();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

private:
    POINT ClientPoint(const QMouseEvent* event) const;

    HWND window;
    bool altAlone = false;
};
