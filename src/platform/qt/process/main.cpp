#include <QtCore/QDir>
#include <QtCore/QLibraryInfo>
#include <cstdio>

#include "platform/qt/look/font_warm_up.h"
#include "platform/qt/process/bring_up.h"
#include "platform/qt/process/command_line.h"
#include "platform/qt/window/handed_files.h"

namespace {

// Options of the toolkit's own begin with a single dash and can only be told once it is up.
QStringList LongOptions(int argumentCount, char** arguments) {
    QStringList options;
    for (int i = 1; i < argumentCount && qstrcmp(arguments[i], "--") != 0; ++i) {
        if (qstrncmp(arguments[i], "--", 2) == 0) {
            options << QString::fromLocal8Bit(arguments[i]);
        }
    }
    return options;
}

const char* WhyNoDisplayOpens() {
    const QDir plugins(QLibraryInfo::path(QLibraryInfo::PluginsPath) + "/platforms");
    const bool onlyWayland =
        qEnvironmentVariableIsSet("WAYLAND_DISPLAY") && qEnvironmentVariableIsEmpty("DISPLAY");
    return onlyWayland && plugins.entryList({"libqwayland*"}).isEmpty()
               ? "the package qt6-wayland is missing, which shows programs on this display"
               : "there is no display that it could be shown on";
}

// The toolkit would complain at length and dump its memory.
void EndInWords(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "quadrel: cannot start, because %s\n", WhyNoDisplayOpens());
        std::_Exit(1);
    }
    if (!QByteArray(context.category).startsWith("qt.qpa.")) {
        std::fprintf(stderr, "%s\n", qPrintable(text));
    }
}

}  // namespace

int main(int argumentCount, char** arguments) {
    if (const auto exitCode = AnswerOptions(LongOptions(argumentCount, arguments))) {
        return *exitCode;
    }
    qInstallMessageHandler(EndInWords);
    const auto handheld = BringHandheldUp(argumentCount, arguments);
    qInstallMessageHandler(nullptr);
    const QStringList left = QCoreApplication::arguments().mid(1);
    if (const auto exitCode = AnswerOptions(left)) {
        AwaitFonts();
        return *exitCode;
    }
    HandOver(FilesNamed(left));
    return RunProgram();
}
