#include "recipe/mhxrcp_hirarch_func.h"

namespace hx::recipe {

void ShowWaitCursor(forms::Screen& screen) { screen.setPointer(forms::Pointer::hourglass); }

void RestoreCursor(forms::Screen& screen) { screen.setPointer(forms::Pointer::standard); }

}  // namespace hx::recipe
