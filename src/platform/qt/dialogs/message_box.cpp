// Message boxes: the toolkit's own, sized with the screen.
#include <QtGui/QFontMetrics>
#include <QtGui/QIcon>
#include <QtGui/QPainter>
#include <QtGui/QScreen>
#include <QtGui/QTextLayout>
#include <QtWidgets/QApplication>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QProxyStyle>
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

// The toolkit's own icons come in a few sizes, the largest too small for a large screen.
QIcon Badge(const QString& sign) {
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

class BoxStyle : public QProxyStyle {
public:
    BoxStyle() : QProxyStyle("Fusion") {
    }
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override {
        switch (metric) {
            case PM_MessageBoxIconSize: return Magnified(iconSide);
            case PM_LayoutLeftMargin:
            case PM_LayoutTopMargin:
            case PM_LayoutRightMargin:
            case PM_LayoutBottomMargin: return Magnified(margin);
            case PM_LayoutHorizontalSpacing: return 0;
            case PM_LayoutVerticalSpacing: return Magnified(margin / 2);
            default: return QProxyStyle::pixelMetric(metric, option, widget);
        }
    }
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                       const QWidget* widget) const override {
        switch (icon) {
            case SP_MessageBoxQuestion: return Badge("?");
            case SP_MessageBoxInformation: return Badge("i");
            default: return QProxyStyle::standardIcon(icon, option, widget);
        }
    }
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        return hint == SH_DialogButtonBox_ButtonsHaveIcons
                   ? 0
                   : QProxyStyle::styleHint(hint, option, widget, data);
    }
};

// The same look as in the program's own dialogs.
void Dress(QMessageBox& box) {
    static auto* style = new BoxStyle;
    box.setStyle(style);
    box.setPalette(DialogPalette());
    box.setStyleSheet(DialogStyleSheet(ScreenMagnification()));
}

bool HasIcon(const QMessageBox& box) {
    return box.icon() != QMessageBox::NoIcon;
}

// What the toolkit lets a box have of the desktop.
int WidestBox(int desktop) {
    constexpr int smallDesktop = 1024;
    return desktop <= smallDesktop ? desktop : std::min(desktop - 480, 1000);
}

// A box is no wider than the game's screen, unless that leaves nothing to read.
int TextWidth(const QMessageBox& box) {
    constexpr int least = 230;
    const int widest = std::max(WidestBox(box.screen()->size().width()), least);
    const int width = std::clamp(Magnified(screenWidth), least, widest);
    const int icon = HasIcon(box) ? Magnified(iconSide + iconGap) : 0;
    return width - 2 * Magnified(margin) - icon;
}

// A desktop cuts the title of a box that has only room for a few words.
int WidthForTitle(const QMessageBox& box) {
    constexpr int desktopsButtons = 120;
    const int title = QFontMetrics(QApplication::font()).horizontalAdvance(box.windowTitle());
    const int icon = HasIcon(box) ? Magnified(iconSide + iconGap) : 0;
    return title + desktopsButtons - 2 * Magnified(margin) - icon;
}

struct BrokenText {
    QString text;
    double width = 0;  // of its longest line
};

// The toolkit breaks lines only where the desktop is too small for them.
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

// The toolkit has a gap of its own before the text, even where there is no icon, and gives room
// that is left to the icon.
void Arrange(const QMessageBox& box) {
    auto* grid = qobject_cast<QGridLayout*>(box.layout());
    const int gap = HasIcon(box) ? 1 : 0;
    QLayoutItem* item = grid == nullptr ? nullptr : grid->itemAtPosition(0, gap);
    if (item != nullptr && item->spacerItem() != nullptr) {
        item->spacerItem()->changeSize(HasIcon(box) ? Magnified(iconGap) : 0, 1);
        grid->setColumnStretch(gap + 1, 1);
    }
}

// The toolkit breaks the text again in a box of 500 pixels. A short one stands beside the middle of
// the icon.
void SetText(QMessageBox& box, const QString& text) {
    const BrokenText broken = BreakLines(text, ModalFont(), TextWidth(box));
    box.setText(broken.text);
    if (auto* label = box.findChild<QLabel*>("qt_msgbox_label")) {
        const int width = static_cast<int>(std::ceil(broken.width));
        label->setIndent(0);
        label->setMinimumWidth(std::max(width, WidthForTitle(box)));
        label->setMinimumHeight(HasIcon(box) ? Magnified(iconSide) : 0);
    }
}

QMessageBox::Icon IconOf(UINT style) {
    if ((style & MB_ICONQUESTION) != 0) {
        return QMessageBox::Question;
    }
    return (style & MB_ICONINFORMATION) != 0 ? QMessageBox::Information : QMessageBox::NoIcon;
}

}  // namespace

int MessageBoxW(HWND, const WCHAR* text, const WCHAR* title, UINT style) {
    const bool question = (style & MB_YESNO) != 0;
    // Before the screen is shown, the middle of the host's screen is the place for a box.
    QMessageBox box(Host().isVisible() ? &Host() : nullptr);
    box.setWindowTitle(QString::fromUtf16(title));
    // Titles of puzzles and file names come from elsewhere and are never markup.
    box.setTextFormat(Qt::PlainText);
    box.setIcon(IconOf(style));
    Dress(box);
    Arrange(box);
    SetText(box, QString::fromUtf16(text));
    box.setStandardButtons(question ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
    if (question) {
        box.setDefaultButton((style & MB_DEFBUTTON2) != 0 ? QMessageBox::No : QMessageBox::Yes);
    }
    const int answer = RunModal(box);
    if (!question) {
        return IDOK;
    }
    return answer == QMessageBox::Yes ? IDYES : IDNO;
}
