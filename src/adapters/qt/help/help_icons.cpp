#include "adapters/qt/help/help_icons.h"

namespace hx::qt::help_icons {

const char* const back = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">
<path d="M9.500 2.500L4 8l5.500 5.500M4.500 8H14" fill="none" stroke="#1f5c8b" stroke-width="2"
 stroke-linecap="round" stroke-linejoin="round"/></svg>)svg";

const char* const forward = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">
<path d="M6.500 2.500L12 8l-5.500 5.500M11.500 8H2" fill="none" stroke="#1f5c8b" stroke-width="2"
 stroke-linecap="round" stroke-linejoin="round"/></svg>)svg";

const char* const home = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">
<path d="M3.500 7.500v6.500h9V7.500" fill="#d7e6f2" stroke="#1f5c8b" stroke-linejoin="round"/>
<path d="M1.500 8.500L8 2l6.500 6.500" fill="none" stroke="#1f5c8b" stroke-width="1.600" stroke-linecap="round"
 stroke-linejoin="round"/><path d="M6.500 14v-4h3v4" fill="#fff" stroke="#1f5c8b"/></svg>)svg";

const char* const find = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">
<circle cx="6.500" cy="6.500" r="4.500" fill="#eaf3fa" stroke="#5b6b7b" stroke-width="1.400"/>
<path d="M10 10l4.500 4.500" stroke="#5b6b7b" stroke-width="2" stroke-linecap="round"/></svg>)svg";

const char* const up = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">
<path d="M3.500 10.500L8 6l4.500 4.500" fill="none" stroke="#3b4a5a" stroke-width="1.800" stroke-linecap="round"
 stroke-linejoin="round"/></svg>)svg";

const char* const down = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">
<path d="M3.500 5.500L8 10l4.500-4.500" fill="none" stroke="#3b4a5a" stroke-width="1.800" stroke-linecap="round"
 stroke-linejoin="round"/></svg>)svg";

const char* const close = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">
<path d="M4 4l8 8M12 4l-8 8" stroke="#3b4a5a" stroke-width="1.600" stroke-linecap="round"/></svg>)svg";

const char* const book = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">
<path d="M8 3.500C6.500 2.300 4 2 1.500 2.500v10C4 12 6.500 12.300 8 13.500c1.500-1.200 4-1.500 6.500-1v-10C12 2 9.500 2.300 8 3.500z"
 fill="#d7e6f2" stroke="#1f5c8b" stroke-linejoin="round"/><path d="M8 3.500v10" stroke="#1f5c8b"/></svg>)svg";

const char* const topic = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">
<path d="M3.500 1.500h6l3 3v10h-9z" fill="#fff" stroke="#5b6b7b" stroke-linejoin="round"/>
<path d="M9.500 1.500v3h3" fill="none" stroke="#5b6b7b" stroke-linejoin="round"/>
<path d="M5.500 7.500h5M5.500 9.500h5M5.500 11.500h3" stroke="#8fa0b0" fill="none"/></svg>)svg";

const char* const viewer = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 32 32">
<circle cx="16" cy="16" r="14" fill="#1f5c8b"/>
<path d="M11.500 12.500a4.500 4.500 0 1 1 7 3.700c-1.700 1.100-2.500 2-2.500 4" fill="none" stroke="#fff" stroke-width="3"
 stroke-linecap="round"/><circle cx="16" cy="24.500" r="1.900" fill="#fff"/></svg>)svg";

}  // namespace hx::qt::help_icons
