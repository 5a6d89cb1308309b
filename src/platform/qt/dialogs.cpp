// Message boxes: the toolkit's own, sized with the screen.
#include "platform/dialogs.h"

#include <QtWidgets/QMessageBox>
#include <string>

#include "platform/qt/host_window.h"
#include "platform/qt/modal.h"

namespace {

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
    box.setText(QString::fromUtf16(text));
    box.setIcon(IconOf(style));
    box.setStandardButtons(question ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
    box.setDefaultButton(question ? QMessageBox::Yes : QMessageBox::Ok);
    const int answer = RunModal(box);
    if (!question) {
        return IDOK;
    }
    return answer == QMessageBox::Yes ? IDYES : IDNO;
}
