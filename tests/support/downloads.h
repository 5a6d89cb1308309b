// Using the download dialog as a person does.
#pragma once

#include "support/dialogs.h"

void UseDownloadDialog(Handheld& handheld, const std::function<void(OpenDialog&)>& use);

// Types the link into the edit box and presses "Get". Whether it was downloaded: the list has the
// link then. The dialog's changes of the list are not kept.
bool Download(Handheld& handheld, const std::string& link);
