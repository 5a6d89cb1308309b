#include "platform/qt/input/hold_cue.h"

#include <QtCore/QtMath>
#include <QtGui/QPainter>

#include "platform/qt/look/colors.h"

namespace {

constexpr int tapMilliseconds = 180;  // most taps are over by then
constexpr int frameMilliseconds = 30;
constexpr double ringRadius = 13;  // logical pixels: seen around a fingertip
constexpr double dotRadius = 1.6;
constexpr int dots = 8;

}  // namespace

HoldCue::HoldCue(QWidget* host, QPointF center, double screenMagnification, int milliseconds)
    : QWidget(host), magnification(screenMagnification), duration(milliseconds) {
    const double reach = (ringRadius + 2 * dotRadius) * magnification;
    setGeometry(QRectF(center.x() - reach, center.y() - reach, 2 * reach, 2 * reach).toRect());
    setAttribute(Qt::WA_TransparentForMouseEvents);
    elapsed.start();
    connect(&frames, &QTimer::timeout, this, QOverload<>::of(&QWidget::update));
    frames.start(frameMilliseconds);
    show();
}

// One dot after the other, clockwise from the top.
void HoldCue::paintEvent(QPaintEvent*) {
    const double progress =
        double(elapsed.elapsed() - tapMilliseconds) / qMax(duration - tapMilliseconds, 1);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, magnification / 2));
    painter.setBrush(titleBarColor);
    painter.translate(rect().center());
    for (int dot = 0; dot < dots && dot < progress * dots; ++dot) {
        const double angle = 2 * M_PI * dot / dots - M_PI / 2;
        painter.drawEllipse(QPointF(qCos(angle), qSin(angle)) * ringRadius * magnification,
                            dotRadius * magnification, dotRadius * magnification);
    }
}
