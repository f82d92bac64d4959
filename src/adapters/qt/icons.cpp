#include "adapters/qt/icons.h"

namespace hx::qt::icons {

const char* const choose = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">
<g fill="#3b4a5a"><circle cx="3" cy="8" r="1.5"/><circle cx="8" cy="8" r="1.5"/><circle cx="13" cy="8" r="1.5"/></g>
</svg>)svg";

const char* const folder = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">
<path d="M1.5 3.5h4.6l1.4 1.8h7v8.2h-13z" fill="#f2c14e" stroke="#9a7420" stroke-linejoin="round"/>
<path d="M1.5 6.6h13" stroke="#9a7420" fill="none"/></svg>)svg";

const char* const document = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">
<path d="M3.5 1.5h6l3 3v10h-9z" fill="#fff" stroke="#5b6b7b" stroke-linejoin="round"/>
<path d="M9.5 1.5v3h3" fill="none" stroke="#5b6b7b" stroke-linejoin="round"/>
<path d="M5.5 7.5h5M5.5 9.5h5M5.5 11.5h3" stroke="#8fa0b0" fill="none"/></svg>)svg";

}  // namespace hx::qt::icons
