#include "platform/qt/files/first_start.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <algorithm>

#include "platform/qt/files/device_paths.h"

namespace {

bool HoldsPuzzles(const QString& folder) {
    const QStringList names = QDir(folder).entryList(QDir::Files);
    return std::any_of(names.begin(), names.end(), [](const QString& name) {
        return name.endsWith(".puz", Qt::CaseInsensitive);
    });
}

// Copying fails where a file of that name is, so nothing is ever overwritten.
void CopyPuzzles(const QStringList& names, const QString& folder) {
    if (HoldsPuzzles(folder)) {
        return;
    }
    QDir().mkpath(folder);
    for (const QString& name : names) {
        const QString target = folder + '/' + name;
        if (QFile::copy(":/puzzles/" + name, target)) {
            QFile::setPermissions(
                target, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
        }
    }
}

}  // namespace

// No puzzle is put into both folders: the second one would be found without the letters that were
// entered in the first.
void PrepareFolders() {
    const QString programFolder = ProgramFolderOnHost();
    const bool hasState = QFile::exists(programFolder + "/quadrel.dat");
    QDir().mkpath(programFolder);
    if (hasState) {
        return;
    }
    const QString documents = DocumentsFolderOnHost();
    const QStringList starters = QDir(":/puzzles").entryList({"*starter*.puz"});
    QStringList puzzles = QDir(":/puzzles").entryList({"*.puz"});
    if (!HoldsPuzzles(documents)) {
        CopyPuzzles(starters, documents);
        puzzles.removeIf([&](const QString& name) { return starters.contains(name); });
    }
    CopyPuzzles(puzzles, PuzzlesFolderOnHost());
}
