#include "platform/qt/controls/dialog_look.h"

#include <algorithm>
#include <utility>

#include "platform/qt/look/colors.h"

namespace {

// Lengths are logical pixels with the unit "lp"; the colours are those of colors.h.
constexpr const char* sheet = R"(
* { color: @ink; }
QToolTip { font-family: "Liberation Sans"; font-size: 10lp; background: white; color: @ink; border: 1lp solid @edge; padding: 1lp; }
QPushButton { background: @bar; border: 1lp solid @edge; border-radius: 3lp; padding: 0; }
QPushButton:default, QPushButton:focus { border-color: @accent; }
QPushButton:hover { background: @hover; }
QPushButton:pressed { background: @pressed; }
QPushButton:focus { border-width: 2lp; }

QDialog { background: white; }
QDialog QPushButton { font-family: "Liberation Sans"; font-size: 10lp; min-width: 44lp;
    min-height: 14lp; padding: 1lp 4lp; margin-left: 6lp; }

QGroupBox { border: 1lp solid @edge; border-radius: 3lp; margin-top: 6lp; }
QGroupBox::title { subcontrol-origin: margin; left: 6lp; padding: 0 2lp; background: white; }

QCheckBox, QRadioButton { spacing: 4lp; outline: 0; }
QCheckBox::indicator, QRadioButton::indicator {
    width: 9lp; height: 9lp; border: 1lp solid @ink; background: white; }
QCheckBox::indicator { border-radius: 2lp; }
QRadioButton::indicator { width: 10lp; height: 10lp; border-radius: @round; }
QCheckBox::indicator:focus, QRadioButton::indicator:focus { border-color: @accent; }
QCheckBox:focus, QRadioButton:focus { color: @accent; }
QCheckBox::indicator:pressed, QRadioButton::indicator:pressed { background: @pressed; }
QCheckBox::indicator:checked { background: @accent; border-color: @accent;
    image: url(:/art/check_mark.svg); }
QRadioButton::indicator:checked { background: qradialgradient(cx: 0.5, cy: 0.5, radius: 0.5,
    fx: 0.5, fy: 0.5, stop: 0 @accent, stop: 0.56 @accent, stop: 0.66 white, stop: 1 white); }

QListWidget { border: 1lp solid @edge; background: white; outline: 0; }
QListWidget:focus { border-color: @accent; }
QListWidget::item { padding-left: 2lp; border: 0; }
QListWidget::item:selected { background: @accent; color: white; }
QLineEdit { border: 1lp solid @edge; border-radius: 2lp; background: white; padding: 0 2lp;
    selection-background-color: @accent; selection-color: white; }
QLineEdit:focus { border-color: @accent; }

QScrollBar { background: @bar; border: 0; }
QScrollBar:vertical { width: 13lp; }
QScrollBar:horizontal { height: 13lp; }
QScrollBar::handle { background: @edge; border-radius: 4lp; margin: 2lp; }
QScrollBar::handle:vertical { min-height: 16lp; }
QScrollBar::handle:horizontal { min-width: 16lp; }
QScrollBar::handle:pressed { background: @accent; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: none; }
QAbstractScrollArea::corner { background: @bar; }

QTabBar { qproperty-drawBase: 0; }
QTabBar::tab { background: @bar; border: 1lp solid @edge; border-top: 0; padding: 0 8lp;
    margin-right: 2lp; border-bottom-left-radius: 3lp; border-bottom-right-radius: 3lp; }
QTabBar::tab:selected { background: white; border-color: @accent; color: @accent; }
QTabBar::tab:selected:focus { background: @hover; }
)";

// At least one, so that no border is lost.
int Pixels(int length, double magnification) {
    return std::max(qRound(length * magnification), 1);
}

// A circle's radius is half its rounded side: where it is more, the toolkit draws a square.
QString RadioButtonRadius(double magnification) {
    const int side = Pixels(10, magnification) + 2 * Pixels(1, magnification);
    return QString("%1px").arg(side / 2);
}

void SetLengths(QString& text, double magnification) {
    constexpr int longest = 99;
    // From the longest on: "44lp" ends with "4lp".
    for (int length = longest; length > 0; --length) {
        text.replace(QString("%1lp").arg(length),
                     QString("%1px").arg(Pixels(length, magnification)));
    }
}

}  // namespace

QString DialogStyleSheet(double magnification) {
    const std::pair<const char*, QColor> colors[] = {
        {"@bar", barColor},     {"@edge", barEdgeColor},    {"@accent", titleBarColor},
        {"@hover", hoverColor}, {"@pressed", pressedColor}, {"@ink", inkColor},
    };
    QString text = sheet;
    for (const auto& [name, color] : colors) {
        text.replace(name, color.name());
    }
    text.replace("@round", RadioButtonRadius(magnification));
    SetLengths(text, magnification);
    return text;
}
