#include "platform/qt/screen/soft_input_panel.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>

#include "platform/qt/common/screen_geometry.h"
#include "platform/qt/look/colors.h"
#include "platform/qt/look/fonts.h"

namespace {

// Five rows of sixteen logical pixels fill the panel's eighty.
constexpr int rowHeight = 16;
constexpr double keyWidth = 18;
constexpr double gap = 0.75;

QStringList Characters(const QString& text) {
    return text.split(QString(), Qt::SkipEmptyParts);
}

QRectF InRow(int row, double left, double right) {
    return QRectF(left, row * rowHeight, right - left, rowHeight);
}

}  // namespace

SoftInputPanel::SoftInputPanel(QWidget* host) : QWidget(host) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    AddRow(0, 0, Characters("1234567890-="), Characters("!@#$%^&*()_+"));
    AddSpecial(QString::fromUtf8("\u2190"), Qt::Key_Backspace, InRow(0, 216, 240));
    AddRow(1, 12, Characters("qwertyuiop[]"), Characters("QWERTYUIOP{}"));
    AddRow(2, 18, Characters("asdfghjkl;'"), Characters("ASDFGHJKL:\""));
    AddSpecial(QString::fromUtf8("\u21B5"), Qt::Key_Return, InRow(2, 216, 240));
    AddSpecial("Shift", Qt::Key_Shift, InRow(3, 0, 30));
    AddRow(3, 30, Characters("zxcvbnm,./"), Characters("ZXCVBNM<>?"));
    AddSpecial("Shift", Qt::Key_Shift, InRow(3, 210, 240));
    AddRow(4, 12, Characters("`\\"), Characters("~|"));
    AddSpecial(QString(), Qt::Key_Space, InRow(4, 48, 168));
    AddSpecial(QString::fromUtf8("\u25C0"), Qt::Key_Left, InRow(4, 168, 186));
    AddSpecial(QString::fromUtf8("\u25B2"), Qt::Key_Up, InRow(4, 186, 204));
    AddSpecial(QString::fromUtf8("\u25BC"), Qt::Key_Down, InRow(4, 204, 222));
    AddSpecial(QString::fromUtf8("\u25B6"), Qt::Key_Right, InRow(4, 222, 240));
}

void SoftInputPanel::AddRow(int row, double left, const QStringList& plain,
                            const QStringList& shifted) {
    for (int i = 0; i < plain.size(); ++i) {
        const double start = left + i * keyWidth;
        keys.push_back({plain[i], shifted[i], 0, InRow(row, start, start + keyWidth)});
    }
}

void SoftInputPanel::AddSpecial(const QString& caption, int code, const QRectF& place) {
    keys.push_back({caption, {}, code, place});
}

void SoftInputPanel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), panelColor);
    painter.setRenderHint(QPainter::Antialiasing);
    for (size_t i = 0; i < keys.size(); ++i) {
        PaintKey(painter, i);
    }
}

void SoftInputPanel::PaintKey(QPainter& painter, size_t index) const {
    const Key& key = keys[index];
    const double magnification = ScreenMagnification();
    const bool lit = static_cast<int>(index) == pressed || (shift && key.code == Qt::Key_Shift);
    // On whole pixels, so that all edges are sharp.
    const QRect cap = QRectF(key.place.topLeft() * magnification, key.place.size() * magnification)
                          .adjusted(gap * magnification, gap * magnification, -gap * magnification,
                                    -gap * magnification)
                          .toRect();
    painter.setPen(Qt::NoPen);
    painter.setBrush(lit ? pressedColor : key.code != 0 ? specialKeyColor : keyColor);
    painter.drawRoundedRect(cap, 2 * magnification, 2 * magnification);
    painter.setPen(inkColor);
    painter.setFont(TextFont((key.plain.size() > 1 ? 8 : 10) * magnification, false));
    painter.drawText(cap, Qt::AlignCenter, shift && key.code == 0 ? key.shifted : key.plain);
}

int SoftInputPanel::KeyAt(QPointF point) const {
    const QPointF logical = point / ScreenMagnification();
    for (size_t i = 0; i < keys.size(); ++i) {
        if (keys[i].place.contains(logical)) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

void SoftInputPanel::mousePressEvent(QMouseEvent* event) {
    pressed = KeyAt(event->position());
    update();
    if (pressed >= 0) {
        Press(keys[static_cast<size_t>(pressed)]);
    }
}

void SoftInputPanel::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
}

void SoftInputPanel::mouseReleaseEvent(QMouseEvent*) {
    pressed = -1;
    update();
}

void SoftInputPanel::Press(const Key& key) {
    if (key.code == Qt::Key_Shift) {
        shift = !shift;
        return;
    }
    const QString text = key.code == Qt::Key_Space ? QString(" ")
                         : key.code != 0           ? QString()
                         : shift                   ? key.shifted
                                                   : key.plain;
    const int code = key.code != 0 ? key.code : key.plain[0].toUpper().unicode();
    QWidget* focus = QApplication::focusWidget();
    // The panel types into the screen it stands on, though the help's window may be the active one.
    const bool onScreen = focus != nullptr && window()->isAncestorOf(focus);
    QWidget* target = onScreen ? focus : window()->focusWidget();
    if (target != nullptr) {
        const auto modifiers = shift ? Qt::ShiftModifier : Qt::NoModifier;
        QKeyEvent press(QEvent::KeyPress, code, modifiers, text);
        QCoreApplication::sendEvent(target, &press);
        QKeyEvent release(QEvent::KeyRelease, code, modifiers, text);
        QCoreApplication::sendEvent(target, &release);
    }
    shift = false;
}
