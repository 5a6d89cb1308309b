// The sign over the screen that says that the program is waiting for the network.
#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

// Waits shorter than this, all of one download together, do not show it. Tests are less patient.
inline int patienceWithoutSign = 300;  // milliseconds

class BusySign : public QWidget {
    Q_OBJECT

public:
    explicit BusySign(QWidget* host);

    // Around each wait.
    void Begin();
    void End();
    void SetAmount(std::size_t bytes);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void ShowFrame();
    void PaintRing(QPainter& painter) const;
    void PaintWords(QPainter& painter) const;
    QString Words() const;

    QTimer frames;
    QElapsedTimer wait;
    qint64 waitedBefore = 0;  // milliseconds
    std::size_t amount = 0;
    int frame = 0;
};
