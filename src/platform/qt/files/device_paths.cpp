#include "platform/qt/files/device_paths.h"

#include <QtCore/QDir>
#include <QtCore/QStandardPaths>
#include <array>

#include "platform/types.h"

namespace {

struct FolderMapping {
    QString device;  // with the trailing backslash
    QString host;    // with the trailing slash
};

QString HomeOverride() {
    const QString home = qEnvironmentVariable("QUADREL_HOME");
    return home.isEmpty() ? QString() : QDir(home).absolutePath();
}

std::array<FolderMapping, 2> Mappings() {
    return {{{"\\My Documents\\", DocumentsFolderOnHost() + '/'},
             {QString::fromUtf16(programFolderOnDevice.data()), ProgramFolderOnHost() + '/'}}};
}

}  // namespace

QString DocumentsFolderOnHost() {
    const QString home = HomeOverride();
    return home.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                          : home + "/Documents";
}

QString ProgramFolderOnHost() {
    const QString home = HomeOverride();
    return home.isEmpty()
               ? QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/quadrel"
               : home + "/quadrel";
}

QString PuzzlesFolderOnHost() {
    return DocumentsFolderOnHost() + "/Quadrel Puzzles";
}

std::optional<QString> ToHostPath(std::u16string_view devicePath) {
    if (devicePath.empty() || devicePath.front() != u'\\' || devicePath.size() >= MAX_PATH) {
        return std::nullopt;
    }
    QString path = QString::fromUtf16(devicePath.data(), static_cast<qsizetype>(devicePath.size()));
    for (const FolderMapping& mapping : Mappings()) {
        if (path.startsWith(mapping.device, Qt::CaseInsensitive)) {
            path = mapping.host + path.mid(mapping.device.size());
            break;
        }
    }
    return path.replace('\\', '/');
}

std::optional<std::u16string> ToDevicePath(const QString& hostPath) {
    QString path = QDir::cleanPath(QDir(hostPath).absolutePath());
    if (path.contains('\\')) {
        return std::nullopt;
    }
    for (const FolderMapping& mapping : Mappings()) {
        if (path.startsWith(mapping.host)) {
            path = mapping.device + path.mid(mapping.host.size());
            break;
        }
    }
    path.replace('/', '\\');
    if (path.size() >= MAX_PATH || path.toUtf8().size() >= MAX_PATH) {
        return std::nullopt;
    }
    return path.toStdU16String();
}
