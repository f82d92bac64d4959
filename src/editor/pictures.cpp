// SPDX-License-Identifier: MIT
#include "editor/pictures.h"

#include <string_view>

namespace hx::editor::pictures {

namespace {

constexpr std::string_view start =
    R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16" width="16" height="16" fill="none" )"
    R"(stroke-width="1.5" stroke-linecap="round" stroke-linejoin="round">)";
constexpr std::string_view end = "</svg>";

forms::Picture drawing(std::string_view shapes) {
    return {std::string(start) + std::string(shapes) + std::string(end)};
}

}  // namespace

forms::Picture create() {
    return drawing(R"(<path stroke="#7f8b97" d="M7 14H3.5A1 1 0 0 1 2.5 13V3A1 1 0 0 1 3.5 2H8.5L11.5 5V7"/>)"
                   R"(<path stroke="#7f8b97" d="M8.5 2V5H11.5"/>)"
                   R"(<path stroke="#2f9e5b" stroke-width="2" d="M11.5 9V14.5M8.75 11.75H14.25"/>)");
}

forms::Picture edit() {
    return drawing(R"(<path stroke="#3d84d6" d="M3 10.8L10.8 3A1.55 1.55 0 0 1 13 5.2L5.2 13L2.5 13.5Z"/>)"
                   R"(<path stroke="#3d84d6" d="M9.4 4.4L11.6 6.6"/>)");
}

forms::Picture remove() {
    return drawing(R"(<path stroke="#d9534f" d="M2.5 4.5H13.5M6 4.5V2.5H10V4.5"/>)"
                   R"(<path stroke="#d9534f" d="M4 4.5L4.7 13.5H11.3L12 4.5M6.7 7V11M9.3 7V11"/>)");
}

forms::Picture refresh() {
    return drawing(R"(<path stroke="#3d84d6" d="M13.2 7.2A5.3 5.3 0 0 0 3.6 5.1M3.2 2.2V5.4H6.4"/>)"
                   R"(<path stroke="#3d84d6" d="M2.8 8.8A5.3 5.3 0 0 0 12.4 10.9M12.8 13.8V10.6H9.6"/>)");
}

forms::Picture choose() {
    return drawing(R"(<g fill="#7f8b97" stroke="none"><circle cx="3.5" cy="8" r="1.4"/><circle cx="8" cy="8" r="1.4"/>)"
                   R"(<circle cx="12.5" cy="8" r="1.4"/></g>)");
}

}  // namespace hx::editor::pictures
