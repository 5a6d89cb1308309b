// The dialogs that are open.
#pragma once

#include "platform/types.h"

// Closes them as the OK button in the title bar does, the newest first.
void CloseDialogs();
