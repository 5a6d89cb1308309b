#include "platform/qt/process/command_line.h"

#include <QtCore/QDir>
#include <QtCore/QUrl>
#include <algorithm>
#include <cstdio>

namespace {

constexpr const char* usage =
    "usage: quadrel [FILE]\n"
    "Opens the puzzle in the file, or goes on with the one that was left.\n"
    "\n"
    "  --help     says this\n"
    "  --version  says which version it is\n";

// Nothing behind two dashes alone is an option.
constexpr const char* endOfOptions = "--";

bool IsOption(const QString& argument) {
    return argument.startsWith('-') && argument != "-";
}

}  // namespace

std::optional<int> AnswerOptions(const QStringList& arguments) {
    const auto option = std::find_if(arguments.begin(), arguments.end(), IsOption);
    if (option == arguments.end() || *option == endOfOptions) {
        return std::nullopt;
    }
    if (*option == "--help") {
        std::fputs(usage, stdout);
        return 0;
    }
    if (*option == "--version") {
        std::puts("Quadrel " QUADREL_VERSION);
        return 0;
    }
    std::fprintf(stderr, "quadrel: unknown option %s; --help says more\n", qPrintable(*option));
    return 2;
}

QStringList FilesNamed(const QStringList& arguments) {
    QStringList files = arguments;
    files.removeOne(endOfOptions);
    for (QString& file : files) {
        const QUrl address(file);
        file = QDir::cleanPath(
            QDir::current().absoluteFilePath(address.isLocalFile() ? address.toLocalFile() : file));
    }
    return files;
}
