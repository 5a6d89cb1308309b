// The program's menus, as the module holds them.
#pragma once

#include "platform/resources.h"

std::span<const MenuResource> ProgramMenus();
