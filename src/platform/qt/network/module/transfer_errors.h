// The handheld's error numbers for what ends a transfer.
#pragma once

#include <curl/curl.h>

#include "platform/errors.h"

// Opened once the last server has answered.
DWORD ErrorOfTransfer(CURL* easy, CURLcode code, bool opened);
