#include "platform/qt/first_start.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <algorithm>

#include "platform/qt/device_paths.h"

namespace {

bool HoldsPuzzles(const QString& folder) {
    const QStringList names = QDir(folder).entryList(QDir::Files);
    return std::any_of(names.begin(), names.end(), [](const QString& name) {
        return name.endsWith(".puz", Qt::CaseInsensitive);
    });
}

// Copying fails where a file of that name is, so nothing is ever overwritten.
void CopyPuzzles(const QString& pattern, const QString& folder) {
    if (HoldsPuzzles(folder)) {
        return;
    }
    QDir().mkpath(folder);
    for (const QString& name : QDir(":/puzzles").entryList({pattern})) {
        const QString target = folder + '/' + name;
        if (QFile::copy(":/puzzles/" + name, target)) {
            QFile::setPermissions(
                target, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
        }
    }
}

}  // namespace

void PrepareFolders() {
    const QString programFolder = ProgramFolderOnHost();
    const bool hasState = QFile::exists(programFolder + "/quadrel.dat");
    QDir().mkpath(programFolder);
    if (!hasState) {
        const QString documents = DocumentsFolderOnHost();
        CopyPuzzles("*.puz", documents + "/Quadrel Puzzles");
        CopyPuzzles("*starter*.puz", documents);
    }
}
