#include "platform/qt/network/network_module.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QLibrary>

StartTransferFunction* LoadNetworkModule() {
    const QDir program(QCoreApplication::applicationDirPath());
    for (const char* folder : {".", INSTALLED_MODULES}) {
        const QString path = program.filePath(QString(folder) + '/' + networkModuleName);
        if (auto* start = QLibrary::resolve(path, startTransferName)) {
            return reinterpret_cast<StartTransferFunction*>(start);
        }
    }
    return nullptr;
}
