#include "platform/qt/window/end_request.h"

#include "platform/qt/window/messages.h"
#include "platform/qt/window/open_above.h"
#include "platform/qt/window/window.h"

namespace {

bool endingAsked = false;

}  // namespace

bool EndingAsked() {
    return endingAsked;
}

void ForgetEnding() {
    endingAsked = false;
}

void AskProgramToEnd() {
    endingAsked = true;
    CloseEverythingAbove();
    closeOpenDialogs();
    PostMessageW(BottomWindow(), WM_CLOSE, 0, 0);
}

void EndProgramAtOnce() {
    if (InsideProcedure()) {
        AskProgramToEnd();
    } else {
        CloseEverythingAbove();
        SendMessageW(BottomWindow(), WM_CLOSE, 0, 0);
    }
}

void TellProgramMinimized() {
    if (InsideProcedure()) {
        AskProgramToEnd();
    } else {
        // A message of the help's window stands above no procedure.
        CloseEverythingAbove();
        SendMessageW(BottomWindow(), WM_SIZE, SIZE_MINIMIZED, 0);
    }
}
