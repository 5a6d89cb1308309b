// The programs of the handheld that show the help and web pages.
#pragma once

#include "platform/types.h"

// A file of the help, with "#chapter" to open it there.
void OpenHelp(const WCHAR* page);
void OpenWebSite();
