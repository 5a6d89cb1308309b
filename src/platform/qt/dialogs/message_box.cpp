// Message boxes, from the toolkit's parts: its own box breaks texts and places signs for the sizes
// of a desktop.
#include <QtGui/QFontMetrics>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtGui/QScreen>
#include <QtGui/QTextLayout>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "platform/dialogs.h"
#include "platform/qt/common/screen_geometry.h"
#include "platform/qt/common/screen_layout.h"
#include "platform/qt/controls/dialog_look.h"
#include "platform/qt/dialogs/modal.h"
#include "platform/qt/host/host_window.h"
#include "platform/qt/look/colors.h"
#include "platform/qt/look/fonts.h"

namespace {

// Logical pixels.
constexpr int margin = 8;
constexpr int iconSide = 24;
constexpr int iconGap = 8;

int Magnified(int length) {
    return qRound(length * ScreenMagnification());
}

// The toolkit's own signs come in a few sizes, the largest too small for a large screen.
QPixmap Badge(const QString& sign) {
    const double ratio = Host().devicePixelRatioF();
    const int side = qRound(Magnified(iconSide) * ratio);
    QPixmap badge(side, side);
    badge.fill(Qt::transparent);
    badge.setDevicePixelRatio(ratio);
    const QRectF area(0, 0, side / ratio, side / ratio);
    QPainter painter(&badge);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(titleBarColor);
    painter.drawEllipse(area);
    painter.setPen(titleTextColor);
    painter.setFont(TextFont(area.height() * 0.72, true));
    painter.drawText(area, Qt::AlignCenter, sign);
    return badge;
}

// A box is no wider than the game's screen, unless that leaves nothing to read.
int TextWidth(const QWidget& box, int sign) {
    constexpr int least = 230;
    const int desktop = std::max(box.screen()->availableSize().width(), least);
    return std::clamp(Magnified(screenWidth), least, desktop) - 2 * Magnified(margin) - sign;
}

// A desktop cuts the title of a box that has only room for a few words.
int WidthForTitle(const QWidget& box, int sign) {
    constexpr int desktopsButtons = 120;
    const int title = QFontMetrics(QApplication::font()).horizontalAdvance(box.windowTitle());
    return title + desktopsButtons - 2 * Magnified(margin) - sign;
}

struct BrokenText {
    QString text;
    double width = 0;  // of its longest line
};

// A label breaks lines between words only, and paths can be wider than the screen.
BrokenText BreakLines(const QString& text, const QFont& font, double width) {
    QTextOption anywhereIfNeeded;
    anywhereIfNeeded.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    BrokenText broken;
    QStringList paragraphs;
    for (const QString& paragraph : text.split('\n')) {
        QTextLayout layout(paragraph, font);
        layout.setTextOption(anywhereIfNeeded);
        QStringList lines;
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width);
            lines << paragraph.mid(line.textStart(), line.textLength());
            broken.width = std::max(broken.width, line.naturalTextWidth());
        }
        layout.endLayout();
        paragraphs << lines.join(QChar(QChar::LineSeparator));
    }
    broken.text = paragraphs.join('\n');
    return broken;
}

class Box : public QDialog {
public:
    // Before the screen is shown, the middle of the host's screen is the place for a box.
    Box(const QString& title, UINT style) : QDialog(Host().isVisible() ? &Host() : nullptr) {
        setWindowTitle(title);
        setStyleSheet(DialogStyleSheet(ScreenMagnification()));
        const int space = Magnified(margin);
        rows->setContentsMargins(space, space, space, space);
        rows->setSpacing(space);
        rows->setSizeConstraint(QLayout::SetFixedSize);
        message->setSpacing(Magnified(iconGap));
        rows->addLayout(message);
        rows->addLayout(buttons);
        buttons->setSpacing(0);
        buttons->addStretch();
        if ((style & (MB_ICONQUESTION | MB_ICONINFORMATION)) != 0) {
            AddSign((style & MB_ICONQUESTION) != 0 ? "?" : "i");
        }
    }

    void AddText(const QString& text) {
        const BrokenText broken = BreakLines(text, ModalFont(), TextWidth(*this, signWidth));
        auto* label = new QLabel(broken.text);
        // Titles of puzzles and file names come from elsewhere and are never markup.
        label->setTextFormat(Qt::PlainText);
        label->setFont(ModalFont());
        label->setMinimumWidth(
            std::max(static_cast<int>(std::ceil(broken.width)), WidthForTitle(*this, signWidth)));
        message->addWidget(label, 1);
    }

    // Named by its answer.
    void AddButton(const QString& caption, int answer, bool isDefault) {
        auto* button = new QPushButton(caption);
        button->setObjectName(QString::number(answer));
        connect(button, &QPushButton::clicked, this, [this, answer] { done(answer); });
        buttons->addWidget(button);
        if (isDefault) {
            button->setDefault(true);
            button->setFocus();
        }
    }

protected:
    // On a small screen there may be no frame between white and white.
    void paintEvent(QPaintEvent* event) override {
        QDialog::paintEvent(event);
        if (Host().isFullScreen()) {
            const int width = Magnified(1);
            QPainter painter(this);
            painter.setPen(QPen(titleBarColor, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
            painter.drawRect(
                rect().adjusted(width / 2, width / 2, -(width + 1) / 2, -(width + 1) / 2));
        }
    }
    // The letter of a caption presses its button with Alt, and without.
    void keyPressEvent(QKeyEvent* event) override {
        for (auto* button : findChildren<QPushButton*>()) {
            if (button->shortcut() == QKeySequence(Qt::ALT | Qt::Key(event->key()))) {
                button->click();
                return;
            }
        }
        QDialog::keyPressEvent(event);
    }

private:
    void AddSign(const QString& sign) {
        auto* label = new QLabel;
        label->setPixmap(Badge(sign));
        message->addWidget(label, 0, Qt::AlignTop);
        signWidth = Magnified(iconSide + iconGap);
    }

    QVBoxLayout* rows = new QVBoxLayout(this);
    QHBoxLayout* message = new QHBoxLayout;
    QHBoxLayout* buttons = new QHBoxLayout;
    int signWidth = 0;
};

}  // namespace

int MessageBoxW(HWND, const WCHAR* text, const WCHAR* title, UINT style) {
    Box box(QString::fromUtf16(title), style);
    box.AddText(QString::fromUtf16(text));
    if ((style & MB_YESNO) == 0) {
        box.AddButton("OK", IDOK, true);
        RunModal(box);
        return IDOK;
    }
    const bool noIsDefault = (style & MB_DEFBUTTON2) != 0;
    box.AddButton("&Yes", IDYES, !noIsDefault);
    box.AddButton("&No", IDNO, noIsDefault);
    // A box that is closed otherwise is answered with no.
    return RunModal(box) == IDYES ? IDYES : IDNO;
}
