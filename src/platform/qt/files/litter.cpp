#include "platform/qt/files/litter.h"

#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QRegularExpression>

#include "platform/qt/files/device_paths.h"

namespace {

// The toolkit's temporary files are named after the file that they are to become, with six letters
// by chance behind it.
bool IsTemporaryName(const QString& name) {
    static const QRegularExpression pattern(R"(\.(dat|puz)\.(?=.*[a-z])(?=.*[A-Z])[A-Za-z]{6}$)");
    return pattern.match(name).hasMatch();
}

// Among the player's own files, one named like "a.dat.BackUp" may be dear: a record begins with a
// device path, and what was killed early is empty.
bool IsOfTheGame(const QFileInfo& info) {
    QFile file(info.filePath());
    return info.path() == ProgramFolderOnHost() || info.size() == 0 ||
           (file.open(QFile::ReadOnly) && file.read(1) == "\\");
}

}  // namespace

void RemoveLitter() {
    constexpr int longestWrite = 60;  // seconds
    const QDateTime old = QDateTime::currentDateTime().addSecs(-longestWrite);
    for (const QString& folder :
         {ProgramFolderOnHost(), PuzzlesFolderOnHost(), DocumentsFolderOnHost()}) {
        const auto files = QDir(folder).entryInfoList({"*.dat.??????", "*.puz.??????"},
                                                      QDir::Files | QDir::NoSymLinks);
        for (const QFileInfo& file : files) {
            if (IsTemporaryName(file.fileName()) && file.lastModified() < old &&
                IsOfTheGame(file)) {
                QFile::remove(file.filePath());
            }
        }
    }
}
