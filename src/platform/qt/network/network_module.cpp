#include "platform/qt/network/network_module.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLibrary>

StartTransferFunction* LoadNetworkModule() {
    const QString path = QCoreApplication::applicationDirPath() + '/' + networkModuleName;
    return reinterpret_cast<StartTransferFunction*>(QLibrary::resolve(path, startTransferName));
}
