#include "platform/qt/help/help_window.h"

#include <QtCore/QFileInfo>
#include <QtCore/QUrl>
#include <QtGui/QAction>
#include <QtGui/QKeyEvent>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QVBoxLayout>
#include <algorithm>

#include "platform/qt/common/screen_geometry.h"
#include "platform/qt/help/help_page.h"
#include "platform/qt/host/host_window.h"
#include "platform/qt/look/colors.h"
#include "platform/qt/look/fonts.h"

namespace {

// Grows with the game where a magnified game says that the screen is a dense one.
double TextEm() {
    constexpr double least = 15;
    constexpr double perMagnification = 5.5;
    return std::max(least, perMagnification * ScreenMagnification());
}

// Only after its first use, and kept: opened again it has the size and place it was left with.
HelpWindow& TheHelpWindow() {
    static auto* window = new HelpWindow;
    return *window;
}

}  // namespace

HelpWindow::HelpWindow() {
    const double em = TextEm();
    setWindowTitle("Quadrel Help");
    setWindowIcon(Host().windowIcon());
    QPalette colors = palette();
    colors.setColor(QPalette::Window, barColor);
    setPalette(colors);
    setFont(TextFont(em, false));
    page = new HelpPage(this, em);
    auto* bar = new QToolBar(this);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(bar);
    column->addWidget(page);
    AddTools(bar);
    PlaceBesideGame(em);
    // Without the game the help goes, too.
    connect(Host().windowHandle(), &QWindow::visibleChanged, this, [this](bool shown) {
        if (!shown) {
            hide();
        }
    });
}

void HelpWindow::AddTools(QToolBar* bar) {
    QAction* back = bar->addAction("Back", page, &QTextBrowser::backward);
    QAction* forward = bar->addAction("Forward", page, &QTextBrowser::forward);
    bar->addAction("Contents", page,
                   [this] { page->setSource(page->source().resolved(QUrl("#contents"))); });
    bar->addSeparator();
    QAction* smaller = bar->addAction("A\u2212", page, [this] { page->Enlarge(-1); });
    QAction* larger = bar->addAction("A+", page, [this] { page->Enlarge(1); });
    smaller->setToolTip("Smaller text (Ctrl and \u2212)");
    larger->setToolTip("Larger text (Ctrl and +)");
    for (auto [action, signal] : {std::pair(back, &QTextBrowser::backwardAvailable),
                                  std::pair(forward, &QTextBrowser::forwardAvailable)}) {
        action->setEnabled(false);
        connect(page, signal, action, &QAction::setEnabled);
    }
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
    const bool ctrl = event->modifiers().testFlag(Qt::ControlModifier);
    const int key = event->key();
    if (key == Qt::Key_Escape || (ctrl && key == Qt::Key_W)) {
        close();
    } else if (ctrl && (key == Qt::Key_Plus || key == Qt::Key_Equal)) {
        // The plus sign shares its key with the equals sign on many keyboards.
        page->Enlarge(1);
    } else if (ctrl && key == Qt::Key_Minus) {
        page->Enlarge(-1);
    } else if (ctrl && key == Qt::Key_0) {
        page->ShowUsualSize();
    } else {
        QWidget::keyPressEvent(event);
    }
}

// As high as the game, on the side with more room, and beside it as long as it stays readable.
void HelpWindow::PlaceBesideGame(double em) {
    constexpr double bestWidth = 40;
    constexpr double leastWidth = 24;
    constexpr double leastHeight = 30;
    constexpr double narrowest = 16;
    const QRect desktop = Host().screen()->availableGeometry();
    const QRect game = Host().frameGeometry();
    const int right = desktop.right() - game.right();
    const int left = game.left() - desktop.left();
    const int room = std::max({right, left, qRound(leastWidth * em)});
    const int width = std::min({room, qRound(bestWidth * em), desktop.width()});
    const int height = std::clamp(
        Host().height(), std::min(qRound(leastHeight * em), desktop.height()), desktop.height());
    setMinimumWidth(std::min(qRound(narrowest * em), desktop.width()));
    resize(width, height);
    const int beside = right >= left ? game.right() + 1 : game.left() - width;
    move(std::clamp(beside, desktop.left(), desktop.right() + 1 - width),
         std::clamp(game.top(), desktop.top(), desktop.bottom() + 1 - height));
}

void HelpWindow::Open(const QUrl& chapter) {
    if (isMinimized()) {
        showNormal();
    }
    show();
    raise();
    activateWindow();
    page->setFocus();
    page->setSource(chapter);
}

// The keys belong to the game again.
void HelpWindow::closeEvent(QCloseEvent* event) {
    QWidget::closeEvent(event);
    if (isActiveWindow() && Host().isVisible()) {
        Host().activateWindow();
    }
}

bool ShowHelp(const QString& chapter) {
    const QUrl address("qrc:/help/" + chapter);
    if (!QFileInfo(":" + address.path()).isFile()) {
        return false;
    }
    TheHelpWindow().Open(address);
    return true;
}
