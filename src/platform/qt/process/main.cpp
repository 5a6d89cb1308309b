#include <cstdlib>

#include "platform/qt/network/waiting.h"
#include "platform/qt/process/bring_up.h"

int main(int argumentCount, char** arguments) {
    const auto handheld = BringHandheldUp(argumentCount, arguments);
    const int exitCode = RunProgram();
    if (waitWasGivenUp) {
        std::quick_exit(exitCode);
    }
    return exitCode;
}
