#include "platform/qt/network/busy_sign.h"

#include <QtCore/QLocale>
#include <QtCore/QtMath>
#include <QtGui/QPainter>

#include "platform/qt/common/screen_geometry.h"
#include "platform/qt/common/screen_layout.h"
#include "platform/qt/look/colors.h"
#include "platform/qt/look/fonts.h"

namespace {

constexpr int frameMilliseconds = 100;
constexpr int dots = 8;

// On the handheld's screen, in logical pixels.
constexpr int signWidth = 172;
constexpr int signHeight = 58;
constexpr RECT signArea{(screenWidth - signWidth) / 2, (screenHeight - signHeight) / 2,
                        (screenWidth + signWidth) / 2, (screenHeight + signHeight) / 2};

// In the sign.
constexpr double edgeWidth = 1;
constexpr double cornerRadius = 5;
constexpr QPointF ringCenter(24, signHeight / 2.0);
constexpr double ringRadius = 9;
constexpr double dotRadius = 2;
constexpr QRectF titlePlace(46, 6, signWidth - 50, 16);
constexpr QRectF wordsPlace(46, 22, signWidth - 50, 16);
constexpr QRectF advicePlace(46, 37, signWidth - 50, 16);
constexpr double titleSize = 12;
constexpr double wordsSize = 11;

}  // namespace

BusySign::BusySign(QWidget* host) : QWidget(host) {
    hide();
    connect(&frames, &QTimer::timeout, this, &BusySign::ShowFrame);
}

void BusySign::Begin() {
    wait.start();
    frames.start(frameMilliseconds);
    ShowFrame();
}

void BusySign::End() {
    waitedBefore += wait.elapsed();
    frames.stop();
    hide();
}

void BusySign::SetAmount(std::size_t bytes) {
    amount = bytes;
}

// Takes its place anew with each frame, since the window may have been resized.
void BusySign::ShowFrame() {
    if (waitedBefore + wait.elapsed() < patienceWithoutSign) {
        return;
    }
    ++frame;
    setGeometry(ExactPlace(signArea).toAlignedRect());
    raise();
    show();
    update();
}

void BusySign::paintEvent(QPaintEvent*) {
    const double magnification = ScreenMagnification();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(magnification, magnification);
    painter.setPen(QPen(titleBarColor, edgeWidth));
    painter.setBrush(Qt::white);
    constexpr double inset = edgeWidth / 2;
    painter.drawRoundedRect(QRectF(inset, inset, signWidth - edgeWidth, signHeight - edgeWidth),
                            cornerRadius, cornerRadius);
    PaintRing(painter);
    PaintWords(painter);
}

// The darkest dot goes round, the others fade behind it.
void BusySign::PaintRing(QPainter& painter) const {
    painter.setPen(Qt::NoPen);
    for (int dot = 0; dot < dots; ++dot) {
        const double angle = 2 * M_PI * (frame - dot) / dots;
        QColor color = titleBarColor;
        color.setAlphaF(1 - static_cast<float>(dot) / dots);
        painter.setBrush(color);
        painter.drawEllipse(ringCenter + QPointF(qCos(angle), qSin(angle)) * ringRadius, dotRadius,
                            dotRadius);
    }
}

void BusySign::PaintWords(QPainter& painter) const {
    painter.setPen(inkColor);
    painter.setFont(TextFont(titleSize, true));
    painter.drawText(titlePlace, Qt::AlignLeft | Qt::AlignVCenter, "Downloading");
    painter.setFont(TextFont(wordsSize, false));
    painter.drawText(wordsPlace, Qt::AlignLeft | Qt::AlignVCenter, Words());
    painter.setPen(titleBarColor);
    painter.drawText(advicePlace, Qt::AlignLeft | Qt::AlignVCenter, "Tap here to stop");
}

QString BusySign::Words() const {
    if (amount == 0) {
        return "Waiting for the server";
    }
    return QLocale::c().formattedDataSize(static_cast<qint64>(amount), 0,
                                          QLocale::DataSizeTraditionalFormat);
}
