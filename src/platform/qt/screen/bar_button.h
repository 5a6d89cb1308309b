// A button of the menu bar: a picture, a tip, and what its keys mean.
#pragma once

#include <QtWidgets/QAbstractButton>

#include "platform/resources.h"

// Logical pixels.
constexpr int barPictureSide = 16;
// In device pixels.
QSize PictureSize(const QWidget& bar);

class BarButton : public QAbstractButton {
    Q_OBJECT

public:
    BarButton(QWidget* bar, const ArtResource* art, HMENU menu = nullptr);

    // Null for a button without a popup.
    HMENU Menu() const {
        return menu;
    }

signals:
    // The arrow keys: to the right or left.
    void Passed(int step);
    void PressedByKey();
    // The keys go back to the program.
    void KeysLeft();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void HandToProgram(QKeyEvent* event);
    void ShowTip();

    const ArtResource* art;
    HMENU menu;
};
