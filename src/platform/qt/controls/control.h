// What stands behind the handle of a dialog's control: a widget of the toolkit and the messages
// that it understands.
#pragma once

#include <memory>

#include "platform/controls.h"
#include "platform/qt/window/window.h"
#include "platform/resources.h"

struct Control : Window {
    Control(HWND dialog, const ControlResource& resource);
    ~Control() override;

    // Takes the widget that shows it, and gives it the look that all controls share.
    void Show(QWidget* shown);
    // The place and the font size follow the screen's magnification.
    virtual void Place();

    virtual LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam);
    virtual QString Text() const;
    virtual void SetText(const QString& text);

    // Sends WM_COMMAND to the dialog.
    void Notify(int code);
    // The brush that the dialog wants for it, or null.
    HGDIOBJ BrushFor(UINT colorMessage);

    HWND dialog;
    const ControlResource& resource;
    HFONT font = nullptr;

protected:
    // The place in the dialog, in logical pixels.
    virtual RECT Area() const;
};

std::unique_ptr<Control> MakeButton(HWND dialog, const ControlResource& resource, QWidget* parent);
std::unique_ptr<Control> MakeStatic(HWND dialog, const ControlResource& resource, QWidget* parent);
std::unique_ptr<Control> MakePicture(HWND dialog, const ControlResource& resource, QWidget* parent,
                                     HINSTANCE instance);
std::unique_ptr<Control> MakeListBox(HWND dialog, const ControlResource& resource, QWidget* parent);
std::unique_ptr<Control> MakeTabControl(HWND dialog, const ControlResource& resource,
                                        QWidget* parent);
std::unique_ptr<Control> MakeEditBox(HWND dialog, const ControlResource& resource, QWidget* parent);
