// The one window on the host that is the handheld: its screen, in the screen's proportions,
// letterboxed, with everything on it.
#pragma once

#include <QtWidgets/QWidget>

#include "platform/resources.h"
#include "platform/windows.h"

class ClientView;
class MenuBarWidget;
class SoftInputPanel;
class TitleBar;

class HostWindow : public QWidget {
    Q_OBJECT

public:
    HostWindow();

    // Below the soft input panel and above everything else.
    void AddView(ClientView* view);

    void SetLook(const std::u16string& title, HICON icon);
    // The title bar alone, without a button in it.
    void ShowTitle(const std::u16string& title);
    void ShowDoneButton(bool shown);
    // While a dialog is open, the menu bar takes nothing.
    void EnableMenuBar(bool enabled);
    void ShowIfHidden();
    void ComeForward();
    void PlaceWidgets();

    // Null when the bar is open already or its resource is missing.
    HWND OpenMenuBar(HWND owner, HINSTANCE instance, int id);
    void CloseMenuBar();
    // The popup's handle as a message's answer; 0 for a button without one.
    LRESULT MenuOfButton(int command) const;
    // Keys go to the bar's buttons, or back to the program's top window.
    void FocusMenuBar();
    void FocusProgram();

    bool PanelUp() const;
    // Has sent WM_SETTINGCHANGE before it returns.
    void SetPanelUp(bool up);
    void ShowPanelButton(bool shown);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool event(QEvent* event) override;

private:
    void FitScreen();
    // Called with every frame; what nobody should wait for is done behind the first one.
    void FinishStart();
    void ShowBareFirst();
    void WatchForMinimizing();
    QSize StartSize() const;

    HICON iconToShow = nullptr;
    TitleBar* titleBar;
    MenuBarWidget* menuBar;
    SoftInputPanel* panel;
};

// Made with the first use; needs the application object.
HostWindow& Host();
