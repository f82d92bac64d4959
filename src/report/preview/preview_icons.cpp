#include "report/preview/preview_icons.h"

namespace hx::report::icons {

const char* const report = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 32 32">
<path d="M6 2h14l7 7v21H6z" fill="#fff" stroke="#5b6b7b" stroke-width="1.600" stroke-linejoin="round"/>
<path d="M20 2v7h7" fill="none" stroke="#5b6b7b" stroke-width="1.600" stroke-linejoin="round"/>
<path d="M10 8h6" stroke="#1f5c8b" stroke-width="2.400" stroke-linecap="round"/>
<path d="M10 14h13M10 18h13M10 22h13M10 26h8" stroke="#9fb6c9" stroke-width="1.600" stroke-linecap="round"/></svg>)svg";

const char* const print = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 20 20">
<path d="M5.500 7V2.500h9V7" fill="#fff" stroke="#5b6b7b" stroke-width="1.200" stroke-linejoin="round"/>
<rect x="2" y="7" width="16" height="7.500" rx="1.500" fill="#d7e6f2" stroke="#1f5c8b" stroke-width="1.200"/>
<path d="M5.500 12h9v5.500h-9z" fill="#fff" stroke="#5b6b7b" stroke-width="1.200" stroke-linejoin="round"/>
<path d="M7.500 14.200h5M7.500 15.900h3.500" stroke="#8fa0b0"/><circle cx="15.300" cy="9.400" r="0.900" fill="#2e8b57"/></svg>)svg";

const char* const pdf = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 20 20">
<path d="M4 1.500h8l4 4v13H4z" fill="#fff" stroke="#5b6b7b" stroke-width="1.200" stroke-linejoin="round"/>
<path d="M12 1.500v4h4" fill="none" stroke="#5b6b7b" stroke-width="1.200" stroke-linejoin="round"/>
<rect x="1.500" y="9" width="13" height="6" rx="1" fill="#b3261e"/>
<path d="M3.700 13.600v-3.200h1a0.950 0.950 0 0 1 0 1.900h-1M7.300 13.600v-3.200h0.600a1.600 1.600 0 0 1 0 3.200zM11.300 13.600v-3.200h1.900M11.300 12h1.500"
 fill="none" stroke="#fff" stroke-width="0.900"/></svg>)svg";

const char* const html = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 20 20">
<path d="M4 1.500h8l4 4v13H4z" fill="#fff" stroke="#5b6b7b" stroke-width="1.200" stroke-linejoin="round"/>
<path d="M12 1.500v4h4" fill="none" stroke="#5b6b7b" stroke-width="1.200" stroke-linejoin="round"/>
<path d="M7.600 9L5.400 11.500l2.200 2.500M12.400 9l2.200 2.500-2.200 2.500M10.900 8.400l-1.800 6.200" fill="none" stroke="#1f5c8b" stroke-width="1.300"
 stroke-linecap="round" stroke-linejoin="round"/></svg>)svg";

const char* const zoomIn = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 20 20">
<circle cx="8.500" cy="8.500" r="6" fill="#eaf3fa" stroke="#5b6b7b" stroke-width="1.500"/>
<path d="M13 13l5 5" stroke="#5b6b7b" stroke-width="2.400" stroke-linecap="round"/>
<path d="M8.500 5.700v5.600M5.700 8.500h5.600" stroke="#1f5c8b" stroke-width="1.600" stroke-linecap="round"/></svg>)svg";

const char* const zoomOut = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 20 20">
<circle cx="8.500" cy="8.500" r="6" fill="#eaf3fa" stroke="#5b6b7b" stroke-width="1.500"/>
<path d="M13 13l5 5" stroke="#5b6b7b" stroke-width="2.400" stroke-linecap="round"/>
<path d="M5.700 8.500h5.600" stroke="#1f5c8b" stroke-width="1.600" stroke-linecap="round"/></svg>)svg";

const char* const fitWidth = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 20 20">
<rect x="3" y="2" width="14" height="16" rx="1" fill="#fff" stroke="#5b6b7b" stroke-width="1.200"/>
<path d="M5.500 10h9M7.500 7.700L5.200 10l2.300 2.300M12.500 7.700l2.300 2.300-2.300 2.300" fill="none" stroke="#1f5c8b" stroke-width="1.400"
 stroke-linecap="round" stroke-linejoin="round"/></svg>)svg";

const char* const fitPage = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 20 20">
<rect x="4" y="2" width="12" height="16" rx="1" fill="#fff" stroke="#5b6b7b" stroke-width="1.200"/>
<path d="M10 4.500v11M8 6.500l2-2.200 2 2.200M8 13.500l2 2.200 2-2.200" fill="none" stroke="#1f5c8b" stroke-width="1.400"
 stroke-linecap="round" stroke-linejoin="round"/></svg>)svg";

const char* const firstPage = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 20 20">
<path d="M4.500 4v12M14.500 4.500L9 10l5.500 5.500" fill="none" stroke="#1f5c8b" stroke-width="2" stroke-linecap="round"
 stroke-linejoin="round"/></svg>)svg";

const char* const previousPage = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 20 20">
<path d="M12.500 4.500L7 10l5.500 5.500" fill="none" stroke="#1f5c8b" stroke-width="2" stroke-linecap="round"
 stroke-linejoin="round"/></svg>)svg";

const char* const nextPage = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 20 20">
<path d="M7.500 4.500L13 10l-5.500 5.500" fill="none" stroke="#1f5c8b" stroke-width="2" stroke-linecap="round"
 stroke-linejoin="round"/></svg>)svg";

const char* const lastPage = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 20 20">
<path d="M15.500 4v12M5.500 4.500L11 10l-5.500 5.500" fill="none" stroke="#1f5c8b" stroke-width="2" stroke-linecap="round"
 stroke-linejoin="round"/></svg>)svg";

const char* const close = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 20 20">
<path d="M5 5l10 10M15 5L5 15" stroke="#3b4a5a" stroke-width="2" stroke-linecap="round"/></svg>)svg";

}  // namespace hx::report::icons
