#include <cstdlib>

#include "platform/qt/bring_up.h"
#include "platform/qt/waiting.h"

int main(int argumentCount, char** arguments) {
    const auto handheld = BringHandheldUp(argumentCount, arguments);
    const int exitCode = RunProgram();
    if (waitWasGivenUp) {
        std::quick_exit(exitCode);
    }
    return exitCode;
}
