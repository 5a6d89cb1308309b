#include "platform/qt/look/palette.h"

#include "platform/qt/look/colors.h"

QPalette HandheldPalette() {
    QPalette palette(barColor, Qt::white);
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, inkColor);
        palette.setColor(QPalette::Disabled, role, barEdgeColor);
    }
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Highlight, titleBarColor);
    palette.setColor(QPalette::HighlightedText, titleTextColor);
    return palette;
}
