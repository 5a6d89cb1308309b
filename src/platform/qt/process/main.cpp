#include "platform/qt/process/bring_up.h"

int main(int argumentCount, char** arguments) {
    const auto handheld = BringHandheldUp(argumentCount, arguments);
    return RunProgram();
}
