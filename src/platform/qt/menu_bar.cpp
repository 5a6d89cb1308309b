#include "platform/qt/menu_bar.h"

#include <QtGui/QPainter>
#include <algorithm>

#include "platform/qt/art.h"
#include "platform/qt/host_window.h"
#include "platform/qt/look.h"
#include "platform/windows.h"

namespace {

// Nine buttons of the program and the panel's fill the 240 pixels.
constexpr int buttonWidth = 24;
constexpr int pictureSize = 16;
constexpr ArtResource panelArt{0, "menu_sip.svg", pictureSize, pictureSize};

const ArtResource* FindArt(HINSTANCE instance, int image) {
    const auto found = std::find_if(instance->art.begin(), instance->art.end(),
                                    [image](const ArtResource& art) { return art.id == image; });
    return found == instance->art.end() ? nullptr : &*found;
}

}  // namespace

BarButton::BarButton(QWidget* bar, HostWindow* parent, const ArtResource* picture)
    : QAbstractButton(bar), host(parent), art(picture) {
    setFocusPolicy(Qt::NoFocus);
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
    if (art == nullptr) {
        return;
    }
    const double ratio = devicePixelRatioF();
    const int side = qRound(pictureSize * host->Magnification() * ratio);
    const QSize free = size() * ratio - QSize(side, side);
    QImage icon = RenderArt(art->file, {side, side});
    icon.setDevicePixelRatio(ratio);
    constexpr double disabledOpacity = 0.35;
    painter.setOpacity(isEnabled() ? 1 : disabledOpacity);
    painter.drawImage(QPointF(free.width() / 2 / ratio, free.height() / 2 / ratio), icon);
}

MenuBarWidget::MenuBarWidget(HostWindow* parent) : QWidget(parent), host(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

bool MenuBarWidget::Open(HWND window, HINSTANCE instance, int id) {
    const auto found = std::find_if(instance->menuBars.begin(), instance->menuBars.end(),
                                    [id](const MenuBarResource& bar) { return bar.id == id; });
    if (found == instance->menuBars.end()) {
        return false;
    }
    owner = window;
    for (const MenuBarButton& button : found->buttons) {
        AddButton(button, instance);
    }
    AddPanelButton();
    PlaceButtons();
    return true;
}

void MenuBarWidget::AddButton(const MenuBarButton& resource, HINSTANCE instance) {
    auto* button = new BarButton(this, host, FindArt(instance, resource.image));
    const QString caption = QString::fromUtf16(resource.caption);
    button->setToolTip(caption);
    button->setAccessibleName(caption);
    button->setEnabled(resource.available);
    const int command = resource.command;
    connect(button, &QAbstractButton::clicked, this,
            [this, command] { PostMessageW(owner, WM_COMMAND, static_cast<WPARAM>(command), 0); });
    button->show();
    buttons.push_back(button);
}

void MenuBarWidget::AddPanelButton() {
    panelButton = new BarButton(this, host, &panelArt);
    panelButton->setCheckable(true);
    panelButton->setToolTip("Keyboard");
    panelButton->setAccessibleName("Keyboard");
    connect(panelButton, &QAbstractButton::toggled, this,
            [this](bool up) { host->SetPanelUp(up); });
    panelButton->show();
}

void MenuBarWidget::Close() {
    owner = nullptr;
    for (BarButton* button : buttons) {
        button->deleteLater();
    }
    buttons.clear();
    if (panelButton != nullptr) {
        panelButton->deleteLater();
        panelButton = nullptr;
    }
}

void MenuBarWidget::ShowPanelButton(bool shown) {
    if (panelButton != nullptr) {
        panelButton->setVisible(shown);
    }
}

void MenuBarWidget::ShowPanelState(bool up) {
    if (panelButton != nullptr) {
        panelButton->setChecked(up);
    }
}

void MenuBarWidget::PlaceButtons() {
    const double magnification = host->Magnification();
    const auto at = [&](int index) { return qRound(index * buttonWidth * magnification); };
    int index = 0;
    for (BarButton* button : buttons) {
        button->setGeometry(at(index), 0, at(index + 1) - at(index), height());
        ++index;
    }
    if (panelButton != nullptr) {
        const int left = width() - qRound(buttonWidth * magnification);
        panelButton->setGeometry(left, 0, width() - left, height());
    }
}

void MenuBarWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), barColor);
    painter.fillRect(0, 0, width(), std::max(1, static_cast<int>(host->Magnification())),
                     barEdgeColor);
}

void MenuBarWidget::resizeEvent(QResizeEvent*) {
    PlaceButtons();
}
