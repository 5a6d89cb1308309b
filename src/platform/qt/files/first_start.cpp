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

// Nothing is ever overwritten.
void CopyPuzzles(const QStringList& names, const QString& folder) {
    if (HoldsPuzzles(folder)) {
        return;
    }
    QDir().mkpath(folder);
    for (const QString& name : names) {
        QFile source(":/puzzles/" + name);
        QFile target(folder + '/' + name);
        if (source.open(QFile::ReadOnly) && target.open(QFile::WriteOnly | QFile::NewOnly)) {
            target.write(source.readAll());
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
    QFile::setPermissions(programFolder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
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
