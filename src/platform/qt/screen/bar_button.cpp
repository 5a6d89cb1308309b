#include "platform/qt/screen/bar_button.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QToolTip>
#include <algorithm>

#include "platform/qt/common/screen_geometry.h"
#include "platform/qt/input/key_codes.h"
#include "platform/qt/look/art.h"
#include "platform/qt/look/colors.h"
#include "platform/qt/look/fonts.h"

QSize PictureSize(const QWidget& bar) {
    const int side = qRound(barPictureSide * ScreenMagnification() * bar.devicePixelRatioF());
    return {side, side};
}

BarButton::BarButton(QWidget* bar, const ArtResource* picture, HMENU popup)
    : QAbstractButton(bar), art(picture), menu(popup) {
    // A tap leaves the focus where it is; the keys of the menu bar give it to the buttons.
    setFocusPolicy(Qt::TabFocus);
}

void BarButton::keyPressEvent(QKeyEvent* event) {
    switch (event->modifiers() & Qt::ControlModifier ? 0 : event->key()) {
        case Qt::Key_Left: emit Passed(-1); break;
        case Qt::Key_Right: emit Passed(1); break;
        case Qt::Key_Escape:
        case Qt::Key_F10:
        case Qt::Key_Alt: emit KeysLeft(); break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space: emit PressedByKey(); break;
        case Qt::Key_Up:
        case Qt::Key_Down:
            if (menu != nullptr) {
                emit PressedByKey();
                break;
            }
            [[fallthrough]];
        default: HandToProgram(event);
    }
}

// Whoever types on has done with the bar. A key that means nothing to the program, like a modifier
// on its own, leaves the focus here.
void BarButton::HandToProgram(QKeyEvent* event) {
    if (VirtualKey(*event) == 0) {
        event->ignore();
        return;
    }
    emit KeysLeft();
    if (QWidget* focus = window()->focusWidget(); focus != this) {
        QCoreApplication::sendEvent(focus, event);
    }
}

bool BarButton::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        ShowTip();
        return true;
    }
    return QAbstractButton::event(event);
}

// As large as the handheld's other texts, and above the bar: below the stylus it would cover the
// picture that it explains.
void BarButton::ShowTip() {
    constexpr int pointerHeight = 24;  // by which the toolkit moves a tip down
    const QFont font = TextFont(10 * ScreenMagnification(), false);
    const int height = QFontMetrics(font).height() + qRound(6 * ScreenMagnification());
    QToolTip::setFont(font);
    QPalette colors;
    colors.setColor(QPalette::ToolTipBase, Qt::white);
    colors.setColor(QPalette::ToolTipText, inkColor);
    QToolTip::setPalette(colors);
    QToolTip::showText(mapToGlobal(QPoint(0, -height - pointerHeight)), toolTip(), this, rect());
}

void BarButton::enterEvent(QEnterEvent*) {
    update();
}

void BarButton::leaveEvent(QEvent*) {
    update();
}

void BarButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (isEnabled() && (isDown() || isChecked())) {
        painter.fillRect(rect(), pressedColor);
    } else if (isEnabled() && underMouse()) {
        painter.fillRect(rect(), hoverColor);
    }
    if (hasFocus()) {
        const int width = std::max(1, qRound(ScreenMagnification()));
        painter.setPen(QPen(titleBarColor, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.drawRect(QRectF(rect()).adjusted(width, width, -width, -width));
    }
    if (art == nullptr) {
        return;
    }
    const double ratio = devicePixelRatioF();
    const QSize pictureSize = PictureSize(*this);
    const QSize free = size() * ratio - pictureSize;
    QImage icon = RenderArt(art->file, pictureSize);
    icon.setDevicePixelRatio(ratio);
    constexpr double disabledOpacity = 0.35;
    painter.setOpacity(isEnabled() ? 1 : disabledOpacity);
    painter.drawImage(QPointF(free.width() / 2 / ratio, free.height() / 2 / ratio), icon);
}
