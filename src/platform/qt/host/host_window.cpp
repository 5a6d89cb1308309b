#include "platform/qt/host/host_window.h"

#include <QtCore/QMimeData>
#include <QtCore/QTimer>
#include <QtCore/QUrl>
#include <QtGui/QCloseEvent>
#include <QtGui/QDropEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtWidgets/QApplication>
#include <algorithm>
#include <utility>

#include "platform/dialogs.h"
#include "platform/menus.h"
#include "platform/qt/common/screen_geometry.h"
#include "platform/qt/common/screen_layout.h"
#include "platform/qt/host/client_view.h"
#include "platform/qt/host/window_place.h"
#include "platform/qt/look/colors.h"
#include "platform/qt/look/icon_object.h"
#include "platform/qt/screen/menu_bar.h"
#include "platform/qt/screen/soft_input_panel.h"
#include "platform/qt/screen/title_bar.h"
#include "platform/qt/window/end_request.h"
#include "platform/qt/window/handed_files.h"
#include "platform/qt/window/notices.h"
#include "platform/qt/window/open_above.h"
#include "platform/qt/window/window.h"
#include "platform/shell.h"

namespace {

LRESULT AnswerForMenuBar(HWND, UINT message, WPARAM, LPARAM lParam) {
    return message == SHCMBM_GETSUBMENU ? Host().MenuOfButton(static_cast<int>(lParam)) : 0;
}

QStringList LocalFiles(const QMimeData& data) {
    QStringList files;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile()) {
            files << url.toLocalFile();
        }
    }
    return files;
}

// How many times the handheld's screen fits.
double TimesInto(QSizeF size) {
    return std::min(size.width() / screenWidth, size.height() / screenHeight);
}

// On a small screen a desktop's frame and panels would leave too little to be read.
bool FillsScreen() {
    constexpr int least = 3;
    return TimesInto(QGuiApplication::primaryScreen()->size()) < least;
}

void Place(QWidget* widget, const QRectF& exact) {
    widget->setGeometry(exact.toAlignedRect());
}

}  // namespace

HostWindow& Host() {
    // Outlives the application's own clean-up, since the program may still end windows then.
    static auto* host = new HostWindow;
    return *host;
}

HostWindow::HostWindow()
    : titleBar(new TitleBar(this)),
      menuBar(new MenuBarWidget(this)),
      panel(new SoftInputPanel(this)) {
    setMinimumSize(
        QSize(screenWidth, screenHeight).boundedTo(QGuiApplication::primaryScreen()->size()));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAcceptDrops(true);
    menuBar->hide();
    panel->hide();
    MenuBarHandle()->procedure = AnswerForMenuBar;
    connect(titleBar, &TitleBar::Done, this,
            [] { SendMessageW(TopWindow(), WM_COMMAND, IDOK, 0); });
    connect(menuBar, &MenuBarWidget::KeysLeft, this, &HostWindow::FocusProgram);
    connect(menuBar, &MenuBarWidget::PanelAsked, this, &HostWindow::SetPanelUp);
    resize(StartSize());
    if (FillsScreen()) {
        setWindowState(Qt::WindowFullScreen);
    } else {
        RestorePlace(*this);
    }
    FitScreen();
}

// The largest whole magnification that leaves the desktop around it in sight.
QSize HostWindow::StartSize() const {
    if (FillsScreen()) {
        return QGuiApplication::primaryScreen()->size();
    }
    constexpr double most = 0.9;
    const double fit = TimesInto(QGuiApplication::primaryScreen()->availableSize());
    return QSize(screenWidth, screenHeight) * static_cast<int>(fit * most);
}

void HostWindow::AddView(ClientView* view) {
    view->stackUnder(panel);
    connect(view, &ClientView::MenuBarAsked, this, &HostWindow::FocusMenuBar);
    connect(view, &ClientView::Painted, this, &HostWindow::FinishStart);
    PlaceWidgets();
}

void HostWindow::SetLook(const std::u16string& title, HICON icon) {
    setWindowTitle(QString::fromStdU16String(title));
    iconToShow = icon;
}

void HostWindow::ShowTitle(const std::u16string& title) {
    titleBar->SetTitle(QString::fromStdU16String(title));
    titleBar->ShowDoneButton(false);
    PlaceWidgets();
}

void HostWindow::ShowDoneButton(bool shown) {
    titleBar->ShowDoneButton(shown);
}

void HostWindow::EnableMenuBar(bool enabled) {
    menuBar->setEnabled(enabled);
}

// The icon's pictures take a quarter of the time to the first frame, which goes without.
void HostWindow::FinishStart() {
    if (HICON icon = std::exchange(iconToShow, nullptr)) {
        QTimer::singleShot(0, this, [icon] { QApplication::setWindowIcon(ToQIcon(icon)); });
    }
}

void HostWindow::ShowIfHidden() {
    if (isVisible()) {
        return;
    }
    FitScreen();
    const bool first = windowHandle() == nullptr;
    ShowBareFirst();
    if (first) {
        WatchForMinimizing();
    }
}

// By whoever's button: of the one in a Wayland window's own frame only this signal tells.
void HostWindow::WatchForMinimizing() {
    connect(windowHandle(), &QWindow::windowStateChanged, this, [](Qt::WindowState state) {
        if (state == Qt::WindowMinimized) {
            TellProgramMinimized();
        }
    });
}

// For each widget that the toolkit shows it tells the session's aids for the disabled, and for the
// first one it waits until it has found them. The window system is at work in the meantime: the
// first frame comes 4 % earlier.
void HostWindow::ShowBareFirst() {
    std::vector<QWidget*> inside;
    for (QWidget* widget : findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (!widget->isHidden()) {
            inside.push_back(widget);
            widget->hide();
        }
    }
    show();
    for (QWidget* widget : inside) {
        widget->show();
    }
}

void HostWindow::ComeForward() {
    if (isMinimized()) {
        showNormal();
    }
    raise();
    activateWindow();
}

void HostWindow::FitScreen() {
    FitScreenInto(size(), devicePixelRatioF());
    Surface::SetRatioOfAll(ScreenRatio());
    PlaceWidgets();
}

void HostWindow::PlaceWidgets() {
    Place(titleBar, ExactPlace(titleBarArea));
    Place(menuBar, ExactPlace(menuBarArea));
    const bool inDialog = TopWindow() != nullptr && TopWindow()->isDialog;
    Place(panel, ExactPlace(inDialog ? softInputPanelAreaOfDialogs : softInputPanelArea));
    for (ClientView* view : findChildren<ClientView*>(Qt::FindDirectChildrenOnly)) {
        Place(view, ExactPlace(view->ShownWindow()->frame));
    }
    update();
}

HWND HostWindow::OpenMenuBar(HWND owner, HINSTANCE instance, int id) {
    if (menuBar->IsOpen() || !menuBar->Open(owner, instance, id)) {
        return nullptr;
    }
    menuBar->show();
    return MenuBarHandle();
}

void HostWindow::CloseMenuBar() {
    menuBar->Close();
    menuBar->hide();
}

LRESULT HostWindow::MenuOfButton(int command) const {
    return reinterpret_cast<LRESULT>(menuBar->MenuOfButton(command));
}

void HostWindow::FocusMenuBar() {
    menuBar->FocusFirstButton();
}

void HostWindow::FocusProgram() {
    if (HWND window = TopWindow()) {
        window->widget->setFocus();
    }
}

bool HostWindow::PanelUp() const {
    return panel->isVisibleTo(this);
}

void HostWindow::SetPanelUp(bool up) {
    if (up == PanelUp()) {
        return;
    }
    panel->setVisible(up);
    menuBar->ShowPanelState(up);
    TellPanelChange(TopWindow(), up);
}

void HostWindow::ShowPanelButton(bool shown) {
    menuBar->ShowPanelButton(shown);
}

void HostWindow::resizeEvent(QResizeEvent*) {
    // A popup has the size and the place that it was opened with.
    ClosePopups();
    FitScreen();
}

void HostWindow::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), letterboxColor);
    painter.fillRect(ExactPlace({0, 0, screenWidth, screenHeight}), Qt::white);
}

// The window closes when the program destroys it, after everything is saved.
void HostWindow::hideEvent(QHideEvent* event) {
    if (!event->spontaneous() && !FillsScreen()) {
        KeepPlace(*this);
    }
}

void HostWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    AskProgramToEnd();
}

void HostWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!LocalFiles(*event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void HostWindow::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    HandOver(LocalFiles(*event->mimeData()));
}

bool HostWindow::event(QEvent* event) {
    const bool handled = QWidget::event(event);
    // Moving to a screen of another density changes the ratio without a resize.
    if (event->type() == QEvent::ScreenChangeInternal) {
        FitScreen();
    }
    return handled;
}
