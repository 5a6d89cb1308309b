// Message boxes: the toolkit's own, sized with the screen.
#include "platform/dialogs.h"

#include <QtGui/QScreen>
#include <QtGui/QTextLayout>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QProxyStyle>
#include <algorithm>

#include "platform/qt/host_window.h"
#include "platform/qt/modal.h"
#include "platform/qt/screen_layout.h"

namespace {

class BoxStyle : public QProxyStyle {
public:
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override {
        constexpr double iconSide = 24;
        return metric == PM_MessageBoxIconSize ? qRound(iconSide * Host().Magnification())
                                               : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

// A box is no wider than the game's screen, unless that leaves nothing to read. Beyond the limits
// of the toolkit's box, it would break the lines again itself.
int TextWidth(const QMessageBox& box) {
    constexpr int least = 230;
    constexpr int most = 500;
    constexpr int margins = 34;
    constexpr int iconGap = 20;
    const int widest = std::min(most, box.screen()->size().width() / 2);
    const int width =
        std::clamp(qRound(screenWidth * Host().Magnification()), least, std::max(widest, least));
    const int icon = box.iconPixmap().deviceIndependentSize().toSize().width();
    return width - margins - (icon == 0 ? 0 : icon + iconGap);
}

// The toolkit breaks lines only where the desktop is too small for them.
QString BreakLines(const QString& text, const QFont& font, double width) {
    QTextOption anywhereIfNeeded;
    anywhereIfNeeded.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QStringList broken;
    for (const QString& paragraph : text.split('\n')) {
        QTextLayout layout(paragraph, font);
        layout.setTextOption(anywhereIfNeeded);
        QStringList lines;
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width);
            lines << paragraph.mid(line.textStart(), line.textLength());
        }
        layout.endLayout();
        broken << lines.join(QChar(QChar::LineSeparator));
    }
    return broken.join('\n');
}

QMessageBox::Icon IconOf(UINT style) {
    if ((style & MB_ICONQUESTION) != 0) {
        return QMessageBox::Question;
    }
    return (style & MB_ICONINFORMATION) != 0 ? QMessageBox::Information : QMessageBox::NoIcon;
}

}  // namespace

int MessageBoxW(HWND, const WCHAR* text, const WCHAR* title, UINT style) {
    static auto* boxStyle = new BoxStyle;
    const bool question = (style & MB_YESNO) != 0;
    // Before the screen is shown, the middle of the host's screen is the place for a box.
    QMessageBox box(Host().isVisible() ? &Host() : nullptr);
    box.setStyle(boxStyle);
    box.setWindowTitle(QString::fromUtf16(title));
    // Titles of puzzles and file names come from elsewhere and are never markup.
    box.setTextFormat(Qt::PlainText);
    box.setIcon(IconOf(style));
    box.setText(BreakLines(QString::fromUtf16(text), ModalFont(), TextWidth(box)));
    box.setStandardButtons(question ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
    // A stray Enter must not clear a puzzle, and no style bit tells the harmless questions.
    box.setDefaultButton(question ? QMessageBox::No : QMessageBox::Ok);
    const int answer = RunModal(box);
    if (!question) {
        return IDOK;
    }
    return answer == QMessageBox::Yes ? IDYES : IDNO;
}
