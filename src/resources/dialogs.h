// The templates of the dialogs.
#pragma once

#include <span>

#include "platform/resources.h"

std::span<const DialogResource> ProgramDialogs();
