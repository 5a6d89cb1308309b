// What stands behind an icon handle.
#pragma once

#include <QtGui/QIcon>

#include "platform/resources.h"

struct IconObject {
    const ArtResource* art;
};

QIcon ToQIcon(HICON icon);
