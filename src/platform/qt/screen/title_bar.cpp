#include "platform/qt/screen/title_bar.h"

#include <QtGui/QPainter>

#include "platform/qt/common/screen_geometry.h"
#include "platform/qt/look/colors.h"
#include "platform/qt/look/fonts.h"

namespace {

// Logical pixels.
constexpr double margin = 8;
constexpr double doneWidth = 36;

class DoneButton : public QAbstractButton {
public:
    explicit DoneButton(TitleBar* bar) : QAbstractButton(bar) {
        setText("OK");
        setFocusPolicy(Qt::NoFocus);
        setAccessibleName("OK");
    }

protected:
    void enterEvent(QEnterEvent*) override {
        update();
    }
    void leaveEvent(QEvent*) override {
        update();
    }

    // A light pill with dark text; the whole button, which is as high as the bar, can be tapped.
    void paintEvent(QPaintEvent*) override {
        constexpr double inset = 4;
        const double magnification = ScreenMagnification();
        const int space = qRound(inset * magnification);
        const QRect pill = rect().adjusted(0, space, -space, -space);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(isDown() ? pressedColor : underMouse() ? hoverColor : titleTextColor);
        painter.drawRoundedRect(pill, pill.height() / 2.0, pill.height() / 2.0);
        painter.setPen(inkColor);
        painter.setFont(TextFont(11 * magnification, true));
        painter.drawText(pill, Qt::AlignCenter, text());
    }
};

}  // namespace

TitleBar::TitleBar(QWidget* host) : QWidget(host), doneButton(new DoneButton(this)) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    doneButton->hide();
    connect(doneButton, &QAbstractButton::clicked, this, &TitleBar::Done);
}

void TitleBar::SetTitle(const QString& text) {
    title = text;
    update();
}

void TitleBar::ShowDoneButton(bool shown) {
    doneButton->setVisible(shown);
}

void TitleBar::resizeEvent(QResizeEvent*) {
    const int wide = qRound(doneWidth * ScreenMagnification());
    doneButton->setGeometry(width() - wide, 0, wide, height());
}

void TitleBar::paintEvent(QPaintEvent*) {
    const double magnification = ScreenMagnification();
    QPainter painter(this);
    painter.fillRect(rect(), titleBarColor);
    painter.setFont(FontFor(title, TextFont(13 * magnification, true)));
    painter.setPen(titleTextColor);
    const auto inset = static_cast<int>(margin * magnification);
    painter.drawText(rect().adjusted(inset, 0, -inset, 0), Qt::AlignVCenter | Qt::AlignLeft, title);
}
