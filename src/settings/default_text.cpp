// SPDX-License-Identifier: MIT
#include <string>

#include "automation/error.h"
#include "automation/text.h"
#include "settings/cinit.h"

namespace hx::settings {

namespace {

constexpr std::int32_t errNoResource = 326;

constexpr std::string_view editorWindow =
    "Me.WindowState=2\r\n"
    "Me.PosLeft=0\r\n"
    "Me.PosTop=0\r\n"
    "Me.Width=6000\r\n"
    "Me.Height=3000\r\n"
    "\r\n"
    "Me.Font.Name=Arial\r\n"
    "Me.Font.Size=8,25\r\n"
    "Me.Font.Underline=False\r\n"
    "Me.Font.Strikethrough=False\r\n"
    "Me.Font.Charset=0\r\n"
    "Me.Font.Italic=False\r\n"
    "Me.Font.Weight=400\r\n"
    "\r\n"
    "tdbRM.Font.Name=Arial\r\n"
    "tdbRM.Font.Size=8,25\r\n"
    "tdbRM.Font.Underline=False\r\n"
    "tdbRM.Font.Strikethrough=False\r\n"
    "tdbRM.Font.Charset=0\r\n"
    "tdbRM.Font.Italic=False\r\n"
    "tdbRM.Font.Weight=400\r\n"
    "\r\n"
    "tdbRM.Columns(\"VarRecipe\").Width=3000,189\r\n"
    "tdbRM.Columns(\"VarRecipe\").AllowSizing=True\r\n"
    "tdbRM.Columns(\"VarRecipe\").Visible=True\r\n"
    "tdbRM.Columns(\"ChildID\").Width=300\r\n"
    "tdbRM.Columns(\"ChildID\").AllowSizing=True\r\n"
    "tdbRM.Columns(\"ChildID\").Visible=True\r\n"
    "\r\n"
    "\r\n"
    "tdbRMColOrders=,0,1,2,3\r\n"
    "sb.Visible=True\r\n"
    "SaveOnExit=True\r\n"
    "RequestOnDelete=True\r\n"
    "LoadOnForeGround=True\r\n";

}  // namespace

std::string_view defaultText(std::string_view name) {
    if (automation::equalIgnoreCase(name, "FRMTABGRIDRCP")) return editorWindow;
    throw automation::Error(errNoResource, "There is no resource \"" + std::string(name) + "\" of type INITS");
}

}  // namespace hx::settings
