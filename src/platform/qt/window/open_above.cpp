#include "platform/qt/window/open_above.h"

#include <QtWidgets/QApplication>

namespace {

// Until nothing is open, or something refuses to close.
void CloseEach(QWidget* (*next)()) {
    for (QWidget* open = next(); open != nullptr && open->close(); open = next()) {
    }
}

}  // namespace

void ClosePopups() {
    CloseEach(QApplication::activePopupWidget);
}

void CloseEverythingAbove() {
    ClosePopups();
    CloseEach(QApplication::activeModalWidget);
}
