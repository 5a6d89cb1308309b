#include "platform/qt/help/help_page.h"

#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QTextBlock>
#include <QtGui/QTextFrame>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QScrollBar>
#include <algorithm>
#include <cmath>

#include "platform/qt/help/help_pictures.h"
#include "platform/qt/help/web_browser.h"
#include "platform/qt/look/fonts.h"

namespace {

// What stays free above a chapter that was jumped to, in ems.
constexpr double chapterMargin = 0.5;

bool HoldsAnchor(const QTextBlock& block) {
    for (auto part = block.begin(); !part.atEnd(); ++part) {
        if (!part.fragment().charFormat().anchorNames().isEmpty()) {
            return true;
        }
    }
    return false;
}

QTextBlock LastChapter(const QTextDocument& document) {
    QTextBlock block = document.lastBlock();
    while (block.isValid() && !HoldsAnchor(block)) {
        block = block.previous();
    }
    return block;
}

}  // namespace

HelpPage::HelpPage(QWidget* parent, double em) : QTextBrowser(parent), usualEm(em) {
    setFont(TextFont(em, false));
    setFrameShape(QFrame::NoFrame);
    setOpenLinks(false);
    connect(this, &QTextBrowser::anchorClicked, this, &HelpPage::Follow);
    auto* layout = document()->documentLayout();
    layout->registerHandler(QTextFormat::ImageObject, new HelpPictures(layout));
}

void HelpPage::Follow(const QUrl& link) {
    if (IsWebAddress(link)) {
        OpenInBrowser(link);
    } else {
        setSource(link);
    }
}

void HelpPage::doSetSource(const QUrl& url, QTextDocument::ResourceType type) {
    const bool otherDocument =
        url.adjusted(QUrl::RemoveFragment) != source().adjusted(QUrl::RemoveFragment);
    QTextBrowser::doSetSource(url, type);
    if (otherDocument) {
        FitColumn();
        scrollToAnchor(url.fragment());
    }
    if (url.hasFragment()) {
        const double margin = chapterMargin * font().pixelSize();
        verticalScrollBar()->setValue(verticalScrollBar()->value() - qRound(margin));
    }
}

void HelpPage::Enlarge(int steps) {
    SetZoom(zoom + steps);
}

void HelpPage::ShowUsualSize() {
    SetZoom(0);
}

void HelpPage::SetZoom(int steps) {
    constexpr int least = -4;
    constexpr int most = 12;
    constexpr double step = 1.1;
    zoom = std::clamp(steps, least, most);
    KeepingPlace([this] {
        setFont(TextFont(usualEm * std::pow(step, zoom), false));
        FitColumn();
    });
}

// Lines of some seventy letters can be read with ease; what a wide window has besides is margin.
void HelpPage::FitColumn() {
    constexpr double widestColumn = 36;
    constexpr double leastMargin = 1.2;
    const double em = font().pixelSize();
    const double margin = std::max(leastMargin * em, (viewport()->width() - widestColumn * em) / 2);
    QTextFrame* root = document()->rootFrame();
    QTextFrameFormat format = root->frameFormat();
    format.setMargin(leastMargin * em);
    format.setLeftMargin(margin);
    format.setRightMargin(margin);
    root->setFrameFormat(format);
    format.setBottomMargin(std::max(RoomBelow(), leastMargin * em));
    root->setFrameFormat(format);
}

// So much that the last chapter, too, can stand at the top of the window.
double HelpPage::RoomBelow() const {
    const QTextBlock last = LastChapter(*document());
    if (!last.isValid()) {
        return 0;
    }
    const auto* layout = document()->documentLayout();
    const double end = layout->blockBoundingRect(document()->lastBlock()).bottom();
    return viewport()->height() - (end - layout->blockBoundingRect(last).top());
}

// The line at the top of the window stays there, however the text flows anew.
void HelpPage::KeepingPlace(const std::function<void()>& change) {
    QScrollBar* bar = verticalScrollBar();
    const bool atTop = bar->value() == 0;
    const QTextCursor line = cursorForPosition(viewport()->rect().topLeft());
    const int before = cursorRect(line).top();
    change();
    bar->setValue(atTop ? 0 : bar->value() + cursorRect(line).top() - before);
}

void HelpPage::resizeEvent(QResizeEvent* event) {
    KeepingPlace([&] {
        QTextBrowser::resizeEvent(event);
        FitColumn();
    });
}

void HelpPage::wheelEvent(QWheelEvent* event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QTextBrowser::wheelEvent(event);
        return;
    }
    wheelTurn += event->angleDelta().y();
    Enlarge(wheelTurn / QWheelEvent::DefaultDeltasPerStep);
    wheelTurn %= QWheelEvent::DefaultDeltasPerStep;
    event->accept();
}
