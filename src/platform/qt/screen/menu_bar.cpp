#include "platform/qt/screen/menu_bar.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QMenu>
#include <algorithm>

#include "platform/menus.h"
#include "platform/qt/common/find_by_id.h"
#include "platform/qt/common/screen_geometry.h"
#include "platform/qt/look/colors.h"
#include "platform/qt/screen/bar_button.h"
#include "platform/qt/screen/popups.h"
#include "platform/qt/window/open_above.h"
#include "platform/windows.h"

namespace {

// Nine buttons of the program and the panel's fill the 240 pixels.
constexpr int buttonWidth = 24;
constexpr ArtResource panelArt{0, "menu_sip.svg", barPictureSide, barPictureSide};

BarButton* Neighbour(const std::vector<BarButton*>& row, const QWidget* of, int step) {
    const auto place = std::find(row.begin(), row.end(), of);
    const auto count = static_cast<int>(row.size());
    return row[static_cast<size_t>((static_cast<int>(place - row.begin()) + step + count) % count)];
}

}  // namespace

MenuBarWidget::MenuBarWidget(QWidget* host) : QWidget(host) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

bool MenuBarWidget::Open(HWND window, HINSTANCE instance, int id) {
    const MenuBarResource* found = FindById(instance->menuBars, id);
    if (found == nullptr) {
        return false;
    }
    owner = window;
    barId = id;
    for (const MenuBarButton& button : found->buttons) {
        AddButton(button, instance);
    }
    AddPanelButton();
    PlaceButtons();
    return true;
}

void MenuBarWidget::AddButton(const MenuBarButton& resource, HINSTANCE instance) {
    HMENU menu = resource.popup == noPopup ? nullptr
                                           : GetSubMenu(LoadMenuW(instance, barId), resource.popup);
    auto* button = new BarButton(this, FindById(instance->menuBarArt, resource.image), menu);
    const QString caption = QString::fromUtf16(resource.caption);
    button->setToolTip(caption);
    button->setAccessibleName(caption);
    const int command = resource.command;
    popups[command] = menu;
    connect(button, &QAbstractButton::clicked, this, [this, button, command] {
        PostMessageW(owner, WM_COMMAND, static_cast<WPARAM>(command), 0);
        OpenPopup(button);
    });
    Connect(button);
    button->show();
    buttons.push_back(button);
}

void MenuBarWidget::Connect(BarButton* button) {
    connect(button, &BarButton::Passed, this, &MenuBarWidget::MoveFocus);
    connect(button, &BarButton::KeysLeft, this, &MenuBarWidget::KeysLeft);
    connect(button, &BarButton::PressedByKey, this, [this, button] { PressByKey(button); });
}

// Stands on the bar, above its button, inside the screen where it fits.
void MenuBarWidget::OpenPopup(BarButton* button) {
    if (button->Menu() == nullptr) {
        return;
    }
    QMenu* popup = PopupOf(button->Menu(), owner, window());
    popup->installEventFilter(this);
    for (QMenu* submenu : popup->findChildren<QMenu*>()) {
        submenu->installEventFilter(this);
    }
    openButton = button;
    const QSize size = popup->sizeHint();
    const int left = std::clamp(button->x(), 0, std::max(width() - size.width(), 0));
    button->setDown(true);
    connect(
        popup, &QMenu::aboutToHide, button, [button] { button->setDown(false); },
        Qt::SingleShotConnection);
    popup->popup(mapToGlobal(QPoint(left, -size.height())));
}

void MenuBarWidget::PressByKey(BarButton* button) {
    emit KeysLeft();
    button->click();
    if (button->Menu() != nullptr) {
        QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
        QCoreApplication::sendEvent(PopupOf(button->Menu(), owner, window()), &down);
    }
}

void MenuBarWidget::OpenNeighbour(int step) {
    std::vector<BarButton*> usable;
    std::copy_if(buttons.begin(), buttons.end(), std::back_inserter(usable), [](BarButton* button) {
        return button->isEnabled() && button->Menu() != nullptr;
    });
    ClosePopups();
    PressByKey(Neighbour(usable, openButton, step));
}

// Left and Right open and close submenus; where there is none they go on to the next popup.
bool MenuBarWidget::eventFilter(QObject* object, QEvent* event) {
    const auto* menu = qobject_cast<QMenu*>(object);
    if (event->type() != QEvent::KeyPress || menu == nullptr) {
        return false;
    }
    const int key = static_cast<QKeyEvent*>(event)->key();
    const QAction* selected = menu->activeAction();
    const bool goesIn = selected != nullptr && selected->isEnabled() && selected->menu() != nullptr;
    const bool goesOut = qobject_cast<QMenu*>(menu->parentWidget()) != nullptr;
    if (key == Qt::Key_Right && !goesIn) {
        OpenNeighbour(1);
        return true;
    }
    if (key == Qt::Key_Left && !goesOut) {
        OpenNeighbour(-1);
        return true;
    }
    return false;
}

HMENU MenuBarWidget::MenuOfButton(int command) const {
    const auto found = popups.find(command);
    return found == popups.end() ? nullptr : found->second;
}

void MenuBarWidget::FocusFirstButton() {
    for (BarButton* button : buttons) {
        if (button->isEnabled()) {
            button->setFocus(Qt::TabFocusReason);
            return;
        }
    }
}

void MenuBarWidget::MoveFocus(int step) {
    std::vector<BarButton*> usable;
    std::copy_if(buttons.begin(), buttons.end(), std::back_inserter(usable),
                 [](BarButton* button) { return button->isEnabled(); });
    if (panelButton != nullptr && panelButton->isVisible()) {
        usable.push_back(panelButton);
    }
    Neighbour(usable, window()->focusWidget(), step)->setFocus(Qt::TabFocusReason);
}

void MenuBarWidget::AddPanelButton() {
    panelButton = new BarButton(this, &panelArt);
    panelButton->setCheckable(true);
    panelButton->setToolTip("Keyboard");
    panelButton->setAccessibleName("Keyboard");
    connect(panelButton, &QAbstractButton::toggled, this, &MenuBarWidget::PanelAsked);
    Connect(panelButton);
    panelButton->show();
}

void MenuBarWidget::Close() {
    owner = nullptr;
    openButton = nullptr;
    for (BarButton* button : buttons) {
        button->deleteLater();
    }
    buttons.clear();
    popups.clear();
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
    const double magnification = ScreenMagnification();
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
    painter.fillRect(0, 0, width(), std::max(1, static_cast<int>(ScreenMagnification())),
                     barEdgeColor);
}

void MenuBarWidget::resizeEvent(QResizeEvent*) {
    PlaceButtons();
}
