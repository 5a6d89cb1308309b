#include "app/menu_bar.h"

#include "platform/resources.h"
#include "platform/shell.h"
#include "resources/ids.h"

HWND CreateMenuBar(HWND window) {
    SHMENUBARINFO request;
    request.cbSize = sizeof request;
    request.hwndParent = window;
    request.nToolBarId = menuBarMain;
    request.hInstRes = &programResources;
    request.nBmpId = menuBarBitmap;
    request.cBmpImages = menuBarImages;
    return SHCreateMenuBar(&request) ? request.hwndMB : nullptr;
}
