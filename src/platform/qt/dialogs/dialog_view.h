// The widget of a dialog: under its controls, and the keys that none of them takes.
#pragma once

#include <functional>

#include "platform/qt/host/client_view.h"

class DialogView : public ClientView {
    Q_OBJECT

public:
    DialogView(QWidget* host, HWND dialog, std::function<void()> placeControls);

    // The control after or before the one that has the focus, around the ends.
    bool MoveFocus(bool forward);
    bool HasFocusInside() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void PressDefaultButton();

    std::function<void()> placeControls;
};
