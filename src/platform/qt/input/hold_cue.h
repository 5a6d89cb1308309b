// A quiet ring of dots around the stylus while it is being held on the spot.
#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

class HoldCue : public QWidget {
    Q_OBJECT

public:
    // Grows around a point of the host window until the hold is recognised. A short tap never
    // sees it.
    HoldCue(QWidget* host, QPointF center, double magnification, int milliseconds);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double magnification;
    int duration;
    QElapsedTimer elapsed;
    QTimer frames;
};
