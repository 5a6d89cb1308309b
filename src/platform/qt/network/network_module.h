// Loading the network module, which lies beside the program file or where it is installed: a start
// without it reaches its first frame 8 % earlier.
#pragma once

#include <QtCore/QString>

#include "platform/qt/network/module/transfer.h"

// The name of its file. Tests choose another one.
inline QString networkModuleName = "libquadrel_network.so";

// Null when the module or something that it needs is not there.
StartTransferFunction* LoadNetworkModule();
