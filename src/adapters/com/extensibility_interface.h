// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>
#undef GetMessage  // which is a member's name here

#include <hx_recipe_editor.h>
