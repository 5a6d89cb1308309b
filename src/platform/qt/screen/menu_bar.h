// The bar at the bottom of the screen: the program's buttons and the soft input panel's.
#pragma once

#include <QtWidgets/QWidget>
#include <map>
#include <vector>

#include "platform/resources.h"

class BarButton;

class MenuBarWidget : public QWidget {
    Q_OBJECT

public:
    explicit MenuBarWidget(QWidget* host);

    // False when the instance has no menu bar of that number.
    bool Open(HWND owner, HINSTANCE instance, int id);
    void Close();
    bool IsOpen() const {
        return owner != nullptr;
    }

    HMENU MenuOfButton(int command) const;
    void FocusFirstButton();
    // From the button that has the focus, to the right or left, around the ends.
    void MoveFocus(int step);

    void ShowPanelButton(bool shown);
    void ShowPanelState(bool up);

signals:
    // The keys go back to the program.
    void KeysLeft();
    void PanelAsked(bool up);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    // The arrow keys of open popups.
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void AddButton(const MenuBarButton& button, HINSTANCE instance);
    void AddPanelButton();
    void Connect(BarButton* button);
    // A popup that a key opens has its first item selected.
    void PressByKey(BarButton* button);
    void OpenPopup(BarButton* button);
    void OpenNeighbour(int step);
    void PlaceButtons();

    HWND owner = nullptr;
    int barId = 0;
    std::vector<BarButton*> buttons;
    std::map<int, HMENU> popups;      // by the button's command
    BarButton* openButton = nullptr;  // the one whose popup was opened last
    BarButton* panelButton = nullptr;
};
