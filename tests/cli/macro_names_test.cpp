// SPDX-License-Identifier: MIT

// Every name of a window, a dialog, a control, a collection and a class is there for macros.
#include "run_macro_text.h"

namespace hx::cli {

namespace {

/// Names that an object must have; the object is an expression of the macro below.
struct Names {
    const char* object;
    std::vector<const char*> names;
};

constexpr const char* objects = R"(
    choose("A")
    local dialogs = {}
    local function see(name, tool)
        studio.OnDialog(name, function(dialog)
            dialogs[name] = dialog
            dialog.cmdCancel.Click()
        end)
        editor.abr.Click(tool)
    end
    see("FRecipe", "mnuRecipeEdit")
    see("FMultiSelectItems", "mnuRecipeMemberNewVariable")
    see("FConfigEditor", "mnuOptionOption")
    studio.Click("RCPU1")
    see("FSubRecipe", "mnuRecipeMemberNewRecipe")
    studio.Click("RCPR1")
    local unknownName = -2147352570
    local function has(object, name)
        if type(object) == "table" then return object[name] ~= nil end
        local ok, e = pcall(function() return object[name] end)
        return ok or e.number ~= unknownName
    end
)";

const std::vector<const char*> input = {"Click",    "DblClick",  "KeyDown",   "KeyUp",
                                        "KeyPress", "MouseDown", "MouseMove", "MouseUp"};
const std::vector<const char*> place = {"Name",    "Tag",  "Left",    "Top",       "Width",  "Height",
                                        "Visible", "Font", "Enabled", "Container", "TabStop"};

const std::vector<Names> names = {
    {"studio",
     {"NewProject",      "OpenProject",   "CloseProject", "Nodes",       "Select",       "Selected",
      "Click",           "DblClick",      "Expand",       "MouseUp",     "KeyDown",      "MouseDown",
      "MouseMove",       "KeyPress",      "KeyUp",        "NodeClick",   "NodeDblClick", "NodeExpand",
      "NodeMouseDown",   "NodeMouseMove", "NodeMouseUp",  "NodeKeyDown", "NodeKeyPress", "NodeKeyUp",
      "StartupComplete", "Deactivate",    "GetMessage",   "OnMessage",   "OnDialog",     "OnItemSelection",
      "OnPathSelection", "OnFont",        "Messages",     "Popups",      "Beeps",        "Help",
      "Components",      "Registry",      "SetRegistry",  "Variables",   "SetVariables", "RegisterComponent"}},
    {"project", {"Query"}},
    {"addin", {"Initialize", "StartupComplete", "Terminate",       "Deactivate",  "NodeClick",   "NodeDblClick",
               "NodeExpand", "NodeMouseDown",   "NodeMouseMove",   "NodeMouseUp", "NodeKeyDown", "NodeKeyPress",
               "NodeKeyUp",  "GetMessage",      "LanguageChanged", "ProjectPath", "ProjectName", "Text1",
               "Text2",      "Text3",           "Explorer",        "HostValue",   "OpenEditor",  "RefreshView",
               "SelectNode", "ShowSelectedNode"}},
    {"editor",
     {"abr",           "tdbRM",           "sb",           "tbrfunc",    "pctrcpTabSplit", "inits",   "SwitchGrids",
      "MakeMyCaption", "VerifyAdds",      "MenuSwitcher", "abr_Resize", "abr_ToolClick",  "PosLeft", "PosTop",
      "mnuRecipeFunc", "mnuRecipeMember", "mnuOption",    "Caption",    "WindowState",    "Path",    "NodeKey"}},
    {"editor.inits",
     {"Motherobject", "LoadDefaultInit", "LoadInits", "SaveInits", "GetInitFromControl", "SetInitToMotherObject",
      "SetInitToControl", "WriteAValueToCInits", "ReadAValueFromCInits", "DeleteAValueInCInits", "ParamExist",
      "WriteToIni", "itms"}},
    {"editor.inits.itms", {"Add", "Delete", "Item", "NewEnum", "Count", "Clear"}},
    {"editor.inits.itms.Item('Me')", {"Name", "val", "Index", "itms"}},
    {"editor.tdbRM",
     {"Columns", "Splits", "RowCount", "Text", "Value", "SetText", "Row", "SelectRows", "SelectedCount", "HeadClick",
      "ButtonClick", "DataMember"}},
    {"editor.tdbRM.Columns('VarRecipe')", {"Caption", "Width", "Order", "Visible", "AllowSizing", "DataField"}},
    {"editor.tdbRM.Splits(0)", {"Size"}},
    {"editor.tdbRM.DataSource",
     {"Open", "Close", "Filter", "Find", "MoveFirst", "MoveLast", "MoveNext", "EOF", "RecordCount", "AddNew", "Update",
      "CancelUpdate", "Resync", "Fields", "State"}},
    {"editor.tdbRM.DataSource.ActiveConnection", {"Open", "Close", "State"}},
    {"editor.tdbRM.DataSource.Fields('VarRecipe')", {"Name", "Value", "Type"}},
    {"editor.sb", {"Panels"}},
    {"editor.sb.Panels(1)", {"Text"}},
    {"editor.abr", {"Bands", "Click"}},
    {"editor.abr.Bands('mnuMain')", {"Tools", "Name"}},
    {"editor.abr.Bands('mnuMain').Tools('mnuRecipes')",
     {"Name", "Caption", "Category", "Enabled", "Visible", "Shortcut"}},
    {"editor.Font", {"Name", "Size", "Charset", "Italic", "Strikethrough", "Underline", "Weight", "Bold"}},
    {"dialogs.FRecipe",
     {"tab",
      "txtName",
      "lblName",
      "txtRecipeName",
      "lblRecipeName",
      "txtFileExtension",
      "lblFileExtension",
      "txtComment",
      "lblComment",
      "txtDescription",
      "lblDescription",
      "txtVarLoad",
      "lblVarLoad",
      "txtVarSave",
      "lblVarSave",
      "txtVarRead",
      "lblVarRead",
      "txtVarWrite",
      "lblVarWrite",
      "chkEnabled",
      "cboFilePath",
      "lblFilePath",
      "cmdChoosePath",
      "chkSaveChanges",
      "chkCryptEngine",
      "fraRecipeRelative",
      "lblRecipeAbsRel",
      "optRecipeAbsrel",
      "txtStandardValue",
      "lblStandardValue",
      "txtVarSetValue",
      "lblVarSetValue",
      "chkSaveSubRecipes",
      "fraTransferBehaviour",
      "fraFileOptions",
      "chkWriteThru",
      "chkSaveThru",
      "cmdChooseItem",
      "cmdOk",
      "cmdCancel",
      "cmdHelp",
      "Cancelled",
      "Owner"}},
    {"dialogs.FRecipe.optRecipeAbsrel(1)", {"Value", "Caption", "Index"}},
    {"dialogs.FRecipe.cmdChooseItem(6)", {"Caption", "Index"}},
    {"dialogs.FRecipe.txtName", {"Text", "SelStart", "BackColor"}},
    {"dialogs.FRecipe.cboFilePath", {"Text", "List", "ListIndex", "ListCount", "ItemData", "AddItem", "Clear"}},
    {"dialogs.FRecipe.chkEnabled", {"Value", "Caption"}},
    {"dialogs.FRecipe.tab", {"Tab", "TabCaption"}},
    {"dialogs.FSubRecipe",
     {"fraChooseRecipe", "lblChooseRecipe", "cmbChooseRecipe", "Label1", "txtVarRecipe", "cmdChooseItem", "cmdOk",
      "cmdCancel", "cmdHelp", "Cancelled", "ParentSavesSubRecipes"}},
    {"dialogs.FMultiSelectItems", {"hxMI", "cmdOk", "cmdCancel", "cmdHelp", "Cancelled"}},
    {"dialogs.FMultiSelectItems.hxMI", {"ItemFilter", "SelectedItems"}},
    {"dialogs.FConfigEditor",
     {"lblEditorFont", "txtEditorFont", "cmdEditorFont", "chkDelQuestion", "chkShowStatusBar", "chkSaveOnExit", "cmdOk",
      "cmdCancel", "cmdHelp", "Cancel"}},
};

/// Windows and controls, all of which have a place and take the user's input.
const std::vector<const char*> controls = {"editor",
                                           "editor.tdbRM",
                                           "editor.abr",
                                           "editor.sb",
                                           "editor.tbrfunc",
                                           "editor.pctrcpTabSplit",
                                           "dialogs.FRecipe",
                                           "dialogs.FSubRecipe",
                                           "dialogs.FMultiSelectItems",
                                           "dialogs.FConfigEditor",
                                           "dialogs.FRecipe.tab",
                                           "dialogs.FRecipe.txtName",
                                           "dialogs.FRecipe.lblName",
                                           "dialogs.FRecipe.cboFilePath",
                                           "dialogs.FRecipe.chkEnabled",
                                           "dialogs.FRecipe.fraFileOptions",
                                           "dialogs.FRecipe.optRecipeAbsrel(0)",
                                           "dialogs.FRecipe.cmdOk",
                                           "dialogs.FSubRecipe.cmbChooseRecipe",
                                           "dialogs.FMultiSelectItems.hxMI"};

class MacroNames : public MacroTextTest {
  protected:
    // A macro that prints each of the names that an object does not have.
    static std::string probe(const std::vector<Names>& rows) {
        std::string text = std::string(oneRecipe) + objects;
        for (const auto& [object, members] : rows) {
            for (const char* name : members) {
                text += "if not has(" + std::string(object) + ", \"" + name + "\") then print([[" + object + "]], \"" +
                        name + "\") end\n";
            }
        }
        return text;
    }
};

TEST_F(MacroNames, OfEveryObjectAreThere) { EXPECT_EQ(printed(probe(names)), ""); }

TEST_F(MacroNames, OfEveryControlAreThere) {
    std::vector<Names> rows;
    for (const char* control : controls) {
        rows.push_back({control, input});
        rows.push_back({control, place});
    }
    EXPECT_EQ(printed(probe(rows)), "");
}

TEST_F(MacroNames, AreLookedForOnEveryObject) {
    std::vector<Names> rows;
    std::string expected;
    for (const auto& row : names) {
        rows.push_back({row.object, {"Nonsense"}});
        expected += std::string(row.object) + "\tNonsense\n";
    }
    EXPECT_EQ(printed(probe(rows)), expected);
}

// Reads, assigns and calls each member with values that it may not expect.
constexpr const char* tryAnything = R"(
    local values = {0, -1, 99999, 2.5, "", "RCPU1", "VarRecipe", true, null, {"A"}, editor}
    local refused, taken = 0, 0
    local function reopen()
        studio.CloseProject() studio.OpenProject("$P") studio.Expand("RCPE0")
        studio.Click(studio.Nodes()[2].key)
    end
    local function count(ok) if ok then taken = taken + 1 else refused = refused + 1 end end
    local function anything(find, name)
        local ok, object = pcall(find)
        if not ok or object == nil then return end
        count(pcall(function() return object[name] end))
        count(pcall(function() return object[name]() end))
        for i, value in ipairs(values) do
            count(pcall(function() object[name] = value end))
            count(pcall(function() return object[name](value) end))
            count(pcall(function() return object[name](value, values[1 + i % #values]) end))
        end
    end
)";

TEST_F(MacroNames, CanBeUsedWithAnythingAndTheEditorGoesOn) {
    std::string text = std::string(oneRecipe) + objects + tryAnything;
    for (const auto& [object, members] : names) {
        const std::string_view name = object;
        if (name == "studio" || name == "project") continue;
        text += "reopen()\n";
        for (const char* member : members) {
            text += "anything(function() return " + std::string(object) + " end, \"" + member + "\")\n";
        }
    }
    text += R"(
        reopen() studio.Messages()
        studio.Click("RCPE0") editor.abr.Click("mnuRecipeNew")
        local last = studio.Nodes()[#studio.Nodes()].key
        studio.Click(last)
        print(editor.NodeKey == last, #studio.Messages(), taken > 500, refused > 1000))";
    EXPECT_EQ(printed(text), "true\t0\ttrue\ttrue\n");
}

TEST_F(MacroNames, OfBandsAndToolsAreThere) {
    EXPECT_EQ(printed(std::string(oneRecipe) + R"(
        local tools = {
            mnuMain = {"mnuRecipes", "mnuRecipeMembers", "mnuOptions"},
            mnuRecipe = {"mnuRecipeDescriptor", "mnuRecipeNew", "mnuRecipeEdit", "mnuRecipeDelete"},
            mnuRecipeMember = {"mnuRecipeMemberDescriptor", "mnuRecipeMemberNewVariable", "mnuRecipeMemberNewRecipe",
                               "mnuRecipeMemberEditSubRecipe", "mnuRecipeMemberDelete"},
            mnuOption = {"mnuOptionActualize", "mnuOptionsSep0", "mnuOptionStatistik", "mnuOptionSep1",
                         "mnuOptionConfiguration", "mnuOptionOption", "mnuOptionReport"},
            mnuShowEditorHelper = {"mnuShowEditorSep", "mnuShowEditor"},
        }
        local count = 0
        for band, names in pairs(tools) do
            assert(editor.abr.Bands(band).ToolCount == #names, band)
            for i, name in ipairs(names) do
                assert(editor.abr.Bands(band).Tools(name).Name == name)
                assert(editor.abr.Bands(band).Tools(i - 1).Name == name, name)
                count = count + 1
            end
        end
        print(count, (pcall(editor.abr.Bands, "mnuNone")), (pcall(editor.abr.Bands("mnuMain").Tools, "mnuNone"))))"),
              "21\tfalse\tfalse\n");
}

TEST_F(MacroNames, OfControlArraysTakeTheirIndex) {
    EXPECT_EQ(printed(std::string(oneRecipe) + R"(
        studio.OnDialog("FRecipe", function(d)
            for i = 0, 6 do assert(d.cmdChooseItem(i).Index == i) end
            for i = 0, 1 do assert(d.optRecipeAbsrel(i).Index == i) end
            print(d.txtName.Index, select(2, pcall(d.cmdChooseItem, 7)).number, (pcall(d.cmdChooseItem)))
            print(select(2, pcall(function() d.txtName = 1 end)).number)
        end)
        editor.abr.Click("mnuRecipeEdit"))"),
              "nil\t-2147352565\tfalse\n-2147352573\n");
}

}  // namespace

}  // namespace hx::cli
