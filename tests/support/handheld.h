// The whole program on its handheld, driven as a person does: stylus, keys, buttons, eyes.
#pragma once

#include <QtGui/QImage>
#include <iosfwd>
#include <string>

#include "platform/types.h"
#include "support/temporary_home.h"

class QWidget;

class Handheld {
public:
    // Starts the program with the screen at this magnification; its files are in the home.
    explicit Handheld(const TemporaryHome& home, double magnification = 1);
    // Ends the program as closing its window does.
    ~Handheld();
    Handheld(const Handheld&) = delete;
    Handheld& operator=(const Handheld&) = delete;

    bool Running() const;
    void Close();

    // Points are logical pixels of the main window's client area.
    void Tap(int x, int y);
    void TapCell(int row, int col);
    // Two taps as quick as a host's double click.
    void DoubleTapCell(int row, int col);
    void Hold(int x, int y);
    void RightClick(int x, int y);
    void Drag(POINT from, POINT to);
    // The stylus in single steps. Putting it down takes effect with the step after it; the first
    // move of a drag is longer than a hand trembles, else the step waits for a tap-and-hold.
    void PutDown(POINT point);
    void MoveTo(POINT point);
    void LiftAt(POINT point);

    // A key of the host's keyboard, by the toolkit's number; letters and digits by their character.
    void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void Type(const std::string& text);
    void Commit(const QString& inputMethodText);

    // Presses the menu bar's button with that tooltip; false when there is none or it is disabled.
    bool PressButton(const QString& tooltip);
    // Raises or lowers the soft input panel by its button.
    void PressPanelButton();
    // Taps the soft input panel, in its own logical pixels.
    void TapPanel(double x, double y);

    void Resize(double magnification);
    // Handles all input and messages that wait.
    void Settle();

    // The screen as the host shows it.
    QImage Screen();
    // A pixel of the main window's client area at magnification 1.
    COLORREF Pixel(int x, int y);
    // The main window's client area, in device pixels.
    QImage Client();
};

// The stylus touches one place of the widget and is lifted at another.
void DragOver(QWidget* widget, QPointF from, QPointF to);

void PrintTo(const QImage& image, std::ostream* out);
COLORREF ColorAt(const QImage& image, int x, int y);
