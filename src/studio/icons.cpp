#include "studio/icons.h"

namespace hx::studio::icons {

const char* const studio = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 32 32">
<rect x="2" y="2" width="28" height="28" rx="6" fill="#1f5c8b"/>
<path d="M9 7c0 9 14 9 14 18M23 7c0 9-14 9-14 18" fill="none" stroke="#fff" stroke-width="2.6" stroke-linecap="round"/>
<path d="M11 11h10M11 21h10" stroke="#9fd0f2" stroke-width="2" stroke-linecap="round"/></svg>)svg";

const char* const project = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">
<path d="M1.5 14.5v-7l4 2.5v-2.500l4 2.500v-2.500l4 2.500v4.500z" fill="#d7e6f2" stroke="#1f5c8b" stroke-linejoin="round"/>
<path d="M11 5V1.500h2V9.500" fill="#d7e6f2" stroke="#1f5c8b" stroke-linejoin="round"/>
<path d="M4 12.500h1.500M7.500 12.500H9M11 12.500h1.500" stroke="#1f5c8b"/></svg>)svg";

const char* const newProject = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">
<path d="M3.500 1.500h6l3 3v5M3.500 1.500v13h5" fill="#fff" stroke="#5b6b7b" stroke-linejoin="round"/>
<path d="M9.500 1.500v3h3" fill="none" stroke="#5b6b7b" stroke-linejoin="round"/>
<path d="M12 9.500v5M9.500 12h5" stroke="#2e8b57" stroke-width="2" stroke-linecap="round"/></svg>)svg";

const char* const openProject = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">
<path d="M1.500 13.500v-10h4.500l1.400 1.800h5.100v2.200" fill="#f2c14e" stroke="#9a7420" stroke-linejoin="round"/>
<path d="M1.500 13.500l2.200-6h11l-2.200 6z" fill="#f8d985" stroke="#9a7420" stroke-linejoin="round"/></svg>)svg";

const char* const help = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">
<circle cx="8" cy="8" r="7" fill="#1f5c8b"/>
<path d="M5.800 6.300a2.300 2.300 0 1 1 3.500 1.900c-0.900 0.600-1.300 1-1.300 1.900" fill="none" stroke="#fff" stroke-width="1.600"
 stroke-linecap="round"/><circle cx="8" cy="12.300" r="1" fill="#fff"/></svg>)svg";

const char* const runMacro = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">
<path d="M4 2.500l9 5.500l-9 5.500z" fill="#2e8b57" stroke="#1f6b41" stroke-linejoin="round"/></svg>)svg";

const char* const stopMacro = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">
<rect x="3" y="3" width="10" height="10" rx="1" fill="#c0392b" stroke="#8e2a20" stroke-linejoin="round"/></svg>)svg";

const char* const clearOutput = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">
<path d="M9.500 2.500l4 4l-6 6h-3.500l-2.500-2.500z" fill="#f8d985" stroke="#5b6b7b" stroke-linejoin="round"/>
<path d="M5.500 6.500l4 4M7.500 13.500h6.500" fill="none" stroke="#5b6b7b" stroke-linecap="round"/></svg>)svg";

const char* const copyOutput = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">
<path d="M5.500 4.500v-3h8v9h-3" fill="#fff" stroke="#5b6b7b" stroke-linejoin="round"/>
<path d="M2.500 4.500h8v10h-8z" fill="#fff" stroke="#5b6b7b" stroke-linejoin="round"/>
<path d="M4.500 7.500h4M4.500 9.500h4M4.500 11.500h2.500" stroke="#1f5c8b"/></svg>)svg";

}  // namespace hx::studio::icons
