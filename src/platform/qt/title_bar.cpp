#include "platform/qt/title_bar.h"

#include <QtGui/QPainter>

#include "platform/qt/host_window.h"
#include "platform/qt/look.h"

TitleBar::TitleBar(HostWindow* parent) : QWidget(parent), host(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void TitleBar::SetTitle(const QString& text) {
    title = text;
    update();
}

void TitleBar::paintEvent(QPaintEvent*) {
    constexpr double margin = 8;
    const double magnification = host->Magnification();
    QPainter painter(this);
    painter.fillRect(rect(), titleBarColor);
    painter.setFont(BarFont(13 * magnification, true));
    painter.setPen(titleTextColor);
    const auto inset = static_cast<int>(margin * magnification);
    painter.drawText(rect().adjusted(inset, 0, -inset, 0), Qt::AlignVCenter | Qt::AlignLeft, title);
}
