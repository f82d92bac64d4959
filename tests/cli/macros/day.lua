-- A day's work in the editor, step by step, with a look into the database after each.
--
--   hxrecipe run [--lcid 1031|1033] day.lua FOLDER [LAST]
--
-- Makes FOLDER/day.hxs, or works on it when an empty project of that name is the one that is open. LAST is the step after which the day ends; without it the day is finished. Each step prints its
-- name; what is not as it should be ends the macro.

local folder, last = ...
-- In the system's own way, for what shows it.
local file = folder .. (folder:find("\\", 1, true) and "\\" or "/") .. "day.hxs"
local english = studio.Registry("SOFTWARE\\Tarnwell\\Helvix\\4.0", "LCID") == 1033

-- What the editor shows, in the language of the day.
local function text(german, inEnglish) return english and inEnglish or german end
local texts = {
    title = text("HelvixStudio Rezepteditor", "HelvixStudio Recipe Editor"),
    recipes = text("Rezepte", "Recipes"),
    subRecipes = text("Unterrezepte", "Sub Recipes"),
    deleteRecipe = text("Wollen Sie wirklich das selektierte Rezept und alle darin enthaltenen Elemente löschen ?",
                        "You really want to delete this Recipe and all included Elements ?"),
    deleteMembers = text("Wollen Sie wirklich die selektierten Rezeptelemente löschen ?",
                         "You really want to delete the selected Elements"),
    variableMissing = text("Es muss ein gültiges Unterrezept und ein Item für den Dateinamen gewählt werden",
                           "Please choose a valid SubRecipe and an Item which describes the File Name"),
    recipeMissing = text("Es muss ein gültiges Unterrezept gewählt werden", "Please choose a valid SubRecipe"),
    fileName = text("Dateiname", "File Name"),
    subRecipe = text("Unterrezept", "Sub Recipe"),
    recipeCount = text("Rezepte:", "Recipes"),
    memberCount = text("Rezeptelemente", "Recipe Members"),
}

-- Asking -------------------------------------------------------------------------------------------------------------

local function show(value)
    if type(value) == "number" then return ("%.15g"):format(value) end
    if type(value) ~= "table" then return tostring(value) end
    local parts = {}
    for i, part in ipairs(value) do parts[i] = show(part) end
    return "{" .. table.concat(parts, ", ") .. "}"
end

local function equal(actual, expected, what)
    if show(actual) ~= show(expected) then
        error(("%s: expected %s, got %s"):format(what or "value", show(expected), show(actual)), 2)
    end
end

-- The rows of a query as texts, columns joined by "|".
local function rows(columns, from)
    local names, list = {}, {}
    for name in columns:gmatch("[^, ]+") do names[#names + 1] = name end
    for i, row in ipairs(project.Query("SELECT " .. columns .. " FROM " .. from)) do
        local parts = {}
        for j, name in ipairs(names) do parts[j] = tostring(row[name]) end
        list[i] = table.concat(parts, "|")
    end
    return list
end

-- The database as it must be now: recipes "ID|Name" and members "ParentID|VarRecipe|ChildID".
local recipes, members = {}, {}
local function checkDatabase()
    equal(rows("ID, Name", "TrcpRecipe ORDER BY ID"), recipes, "recipes")
    equal(rows("ParentID, VarRecipe, ChildID", "TrcpRecipeMember ORDER BY ID"), members, "members")
end

-- The explorer shows each recipe with the node of its sub-recipes.
local function checkNodes()
    local expected = {"RCPE0||" .. texts.recipes}
    for _, recipe in ipairs(recipes) do
        local id, name = recipe:match("^(%d+)|(.*)$")
        expected[#expected + 1] = ("RCPR%s|RCPE0|%s"):format(id, name)
        expected[#expected + 1] = ("RCPU%s|RCPR%s|%s"):format(id, id, texts.subRecipes)
    end
    local nodes = {}
    for i, node in ipairs(studio.Nodes()) do nodes[i] = ("%s|%s|%s"):format(node.key, node.parent, node.caption) end
    equal(nodes, expected, "nodes")
end

local function checkMessages(...)
    local said = {}
    for i, message in ipairs(studio.Messages()) do said[i] = message.text end
    equal(said, {...}, "messages")
end

-- Working ------------------------------------------------------------------------------------------------------------

local key = {f1 = 112, f6 = 117, f8 = 119, f9 = 120, delete = 46, enter = 13, space = 32, down = 40, c = 67}
local shift, ctrl, alt = 1, 2, 4

local function tool(name) return editor.abr.Bands("mnuMain").Tools(name) end
local function click(name) editor.abr.Click(name) end

local function with(dialog, work, action)
    local seen = 0
    studio.OnDialog(dialog, function(shown)
        seen = seen + 1
        work(shown)
    end)
    action()
    studio.OnDialog(dialog, nil)
    equal(seen, 1, dialog .. " shown")
end

local function answering(answer, action)
    studio.OnMessage(function(_, _, buttons, default)
        equal(buttons, {"yes", "no"}, "buttons")
        equal(default, "no", "default button")
        return answer
    end)
    action()
    studio.OnMessage(nil)
end

-- Enabled and visible tools of a band.
local function offered(band)
    local names = {}
    local tools = editor.abr.Bands(band)
    for i = 0, tools.ToolCount - 1 do
        local each = tools.Tools(i)
        if each.Enabled and each.Visible then names[#names + 1] = each.Name end
    end
    return names
end

local function step(name, work)
    work()
    if addin then
        checkDatabase()
        checkNodes()
    end
    checkMessages()
    print(name)
    return name ~= last
end

local steps = {}
local function define(name, work) steps[#steps + 1] = {name = name, work = work} end

-- The day ------------------------------------------------------------------------------------------------------------

define("new project", function()
    if addin == nil or addin.ProjectPath ~= file then studio.NewProject(file) end
    equal(editor, nil, "editor before the first click")
    equal(addin.ProjectName, "day")
    equal(addin.ProjectPath, file)
    studio.StartupComplete()
end)

define("variables", function()
    studio.SetVariables({"Mixer.Level", "Mixer.Heat", "Mixer.Speed", "Pump", "Name.Cola", "Name.Rinse", "Start",
                         "Stop"})
    equal(#studio.Variables(), 8)
end)

define("open the editor", function()
    studio.DblClick("RCPE0")
    equal(editor.NodeKey, "RCPE", "its first click opens the editor")
    studio.Expand("RCPE0")
    equal(editor.Caption, texts.title)
    studio.Click("RCPE0")
    equal(offered("mnuMain"), {"mnuRecipes", "mnuOptions"})
    equal(offered("mnuRecipe"), {"mnuRecipeNew"})
    equal(offered("mnuRecipeMember"), {})
    equal(editor.tdbRM.RowCount, 0)
    equal(editor.sb.Panels(1).Text, "Func:")
    equal(editor.sb.Panels(2).Text, texts.recipeCount)
    equal(editor.sb.Panels(3).Text, texts.memberCount)
end)

define("three recipes", function()
    click("mnuRecipeNew")
    studio.KeyDown("RCPE0", key.f8)
    studio.OnPopup(function(band)
        equal(band, "mnuRecipe")
        return "mnuRecipeNew"
    end)
    studio.MouseUp("RCPE0", 2)
    studio.OnPopup(nil)
    equal(studio.Popups(), {"mnuRecipe"})
    recipes = {"1|Neues Rezept", "2|Neues Rezept(2)", "3|Neues Rezept(3)"}
end)

define("edits of recipes", function()
    studio.Click("RCPR1")
    equal(editor.Caption, texts.title .. ": Neues Rezept")
    equal(offered("mnuRecipe"), {"mnuRecipeEdit", "mnuRecipeDelete"})
    equal(offered("mnuRecipeMember"), {"mnuRecipeMemberNewVariable"})
    with("FRecipe", function(dialog)
        equal(dialog.txtStandardValue.Text, "0")
        equal(dialog.optRecipeAbsrel(0).Value, true)
        equal(dialog.txtVarSetValue.Enabled, false)
        dialog.txtName.Text = "Cola"
        dialog.txtComment.Text = "kühl"
        dialog.txtFileExtension.Text = "rez"
        equal(dialog.txtFileExtension.Text, "re")
        equal(studio.Beeps(), 1)
        dialog.optRecipeAbsrel(1).Click()
        equal(dialog.txtStandardValue.Text, "1")
        dialog.txtStandardValue.Text = "2,5"
        studio.OnItemSelection(function() return " " end)
        for i = 0, 6 do dialog.cmdChooseItem(i).Click() end
        equal(dialog.txtRecipeName.Text, "")
        studio.OnItemSelection(function() return "Start" end)
        for i = 0, 6 do dialog.cmdChooseItem(i).Click() end
        studio.OnItemSelection(nil)
        studio.OnPathSelection(function(current)
            equal(current, "")
            return "<ProjectDir>\\Rezepte"
        end)
        dialog.cmdChoosePath.Click()
        studio.OnPathSelection(nil)
        dialog.chkEnabled.Click()
        dialog.chkSaveThru.Value = 1
        dialog.KeyDown(key.enter, 0)
    end, function() click("mnuRecipeEdit") end)
    equal(rows("VarRecipeName, VarDescription, VarLoad, VarSave, VarRead, VarWrite, VarSetValue, FilePath, " ..
               "FileExtension, Enabled, Comment, StandardValue, SaveSubRecipes, SaveChanges, CryptEngine, Options",
               "TrcpRecipe WHERE ID = 1"),
          {"Start|Start|Start|Start|Start|Start|Start|<ProjectDir>\\Rezepte|re|1|kühl|2.5|0|0|0|2"})
    equal(editor.Caption, texts.title .. ": Cola")
    studio.Click("RCPR2")
    with("FRecipe", function(dialog)
        dialog.txtName.Text = "Rinse"
        dialog.chkSaveSubRecipes.Click()
        dialog.cmdOk.Click()
    end, function() studio.KeyDown("RCPR2", key.f9) end)
    studio.Click("RCPR3")
    studio.OnPopup(function() return "mnuRecipeEdit" end)
    with("FRecipe", function(dialog)
        dialog.txtName.Text = "Fill"
        dialog.cmdHelp.Click()
        dialog.cmdOk.Click()
    end, function() studio.MouseUp("RCPR3", 2) end)
    studio.OnPopup(nil)
    equal(studio.Popups(), {"mnuRecipe"})
    equal(#studio.Help(), 1)
    recipes = {"1|Cola", "2|Rinse", "3|Fill"}
end)

define("edits that are not taken", function()
    local before = rows("ID, Name, Comment, VarLoad", "TrcpRecipe ORDER BY ID")
    with("FRecipe", function(dialog)
        dialog.txtName.Text = "Nothing"
        dialog.txtComment.Text = "Nothing"
        dialog.cmdCancel.Click()
    end, function() click("mnuRecipeEdit") end)
    with("FRecipe", function(dialog) dialog.txtVarLoad.Text = "Nothing" end, function() click("mnuRecipeEdit") end)
    with("FRecipe", function(dialog)
        dialog.txtName.Text = "COLA"
        dialog.cmdOk.Click()
    end, function() click("mnuRecipeEdit") end)
    local message = studio.Messages()[1]
    equal(message.title, "mnuRecipeFunc")
    equal(message.text:match("^(%-?%d+): ."), "-2147217887")
    equal(message.buttons, {"ok"})
    equal(rows("ID, Name, Comment, VarLoad", "TrcpRecipe ORDER BY ID"), before)
end)

define("variables of a recipe", function()
    studio.Click("RCPR1")
    with("FMultiSelectItems", function(dialog)
        equal(dialog.Caption, "Rezeptelemente")
        equal(dialog.hxMI.ItemFilter, 256)
        equal(dialog.hxMI.SelectedCount, 0)
        dialog.hxMI.SelectedItems = {"Mixer.Level", "Mixer.Heat", "Pump"}
        dialog.cmdOk.Click()
    end, function() click("mnuRecipeMemberNewVariable") end)
    members = {"1|Mixer.Level|0", "1|Mixer.Heat|0", "1|Pump|0"}
    equal(editor.tdbRM.RowCount, 3)
    checkDatabase()
    with("FMultiSelectItems", function(dialog)
        dialog.hxMI.SelectedItems = {"Stop"}
        dialog.cmdCancel.Click()
    end, function() editor.tdbRM.KeyDown(key.f8, 0) end)
    checkDatabase()
    with("FMultiSelectItems", function(dialog)
        equal(dialog.hxMI.SelectedItems.Count, 3)
        equal(dialog.hxMI.SelectedItems.Item(2), "Pump")
        dialog.hxMI.Unselect("Mixer.Heat")
        dialog.hxMI.Select("Mixer.Speed")
        dialog.cmdOk.Click()
    end, function()
        studio.OnPopup(function(band) return band == "mnuRecipeMember" and "mnuRecipeMemberNewVariable" or nil end)
        editor.tdbRM.MouseDown(2, 0, 300, 300)
        editor.tdbRM.MouseUp(2, 0, 300, 300)
        studio.OnPopup(nil)
    end)
    equal(studio.Popups(), {"mnuRecipeMember"})
    members = {"1|Mixer.Level|0", "1|Pump|0", "1|Mixer.Speed|0"}
    studio.Click("RCPR2")
    with("FMultiSelectItems", function(dialog)
        dialog.hxMI.SelectedItems = {"Pump"}
        dialog.cmdOk.Click()
    end, function() editor.mnuRecipeMember(0) end)
    members[4] = "2|Pump|0"
end)

define("edits in the grid", function()
    studio.Click("RCPR1")
    local grid = editor.tdbRM
    equal(grid.Columns("VarRecipe").Caption, "Variable")
    equal(grid.Columns("ChildID").Caption, texts.subRecipe)
    grid.Row = 2
    studio.OnItemSelection(function(current)
        equal(current, "Mixer.Speed")
        return "Mixer.Heat"
    end)
    grid.ButtonClick(2, "VarRecipe")
    equal(grid.DataChanged, true)
    grid.Row = 0
    members[3] = "1|Mixer.Heat|0"
    checkDatabase()
    studio.OnItemSelection(function() return "  " end)
    grid.KeyDown(key.f9, 0)
    equal(grid.Text(0, "VarRecipe"), "Mixer.Level")
    studio.OnItemSelection(nil)
    grid.SetText(0, "VarRecipe", "PUMP")
    studio.Beeps()
    equal(pcall(function() grid.Row = 1 end), false, "leaving a refused row")
    checkMessages("Doppelter Name")
    equal(studio.Beeps(), 1)
    equal(grid.Text(0, "VarRecipe"), "Mixer.Level")
    equal(grid.DataChanged, false)
    grid.Row = 1
    grid.SetText(1, "VarRecipe", "Stop")
    editor.VerifyAdds()
    members[2] = "1|Stop|0"
    checkDatabase()
    grid.SetText(1, "VarRecipe", "Pump")
    studio.Click("RCPE0")  -- what is being edited is written when another node is shown
    members[2] = "1|Pump|0"
end)

define("order and layout of the grid", function()
    studio.Click("RCPR1")
    local grid = editor.tdbRM
    local function column() return {grid.Text(0, "VarRecipe"), grid.Text(1, "VarRecipe"), grid.Text(2, "VarRecipe")} end
    grid.HeadClick("VarRecipe")
    equal(grid.SortText, "VarRecipe")
    equal(column(), {"Mixer.Heat", "Mixer.Level", "Pump"})
    grid.HeadClick("VarRecipe")
    equal(grid.SortText, "VarRecipe DESC")
    equal(column(), {"Pump", "Mixer.Level", "Mixer.Heat"})
    grid.SortText = ""
    studio.Click("RCPR1")
    equal(column(), {"Mixer.Level", "Pump", "Mixer.Heat"})
    grid.Columns("VarRecipe").Width = 2000
    grid.Columns("ChildID").Visible = false
    grid.Columns("VarRecipe").Order = 0
    editor.pctrcpTabSplit.MouseDown(1, 0, 0, 0)
    editor.pctrcpTabSplit.MouseMove(1, 0, 1000, 0)
    editor.pctrcpTabSplit.MouseUp(1, 0, 0, 0)
    equal(grid.Splits(0).Size, editor.pctrcpTabSplit.Left - grid.Left - 30, "split")
    editor.pctrcpTabSplit.MouseDown(1, 0, 0, 0)
    editor.pctrcpTabSplit.MouseMove(1, 0, 10 * grid.Width, 0)
    editor.pctrcpTabSplit.MouseUp(1, 0, 0, 0)
    equal(grid.Splits(0).Size, grid.Width - 60, "widest split")
    editor.pctrcpTabSplit.MouseDown(1, 0, 0, 0)
    editor.pctrcpTabSplit.MouseMove(1, 0, -20 * grid.Width, 0)
    editor.pctrcpTabSplit.MouseUp(1, 0, 0, 0)
    equal(grid.Splits(0).Size, 0, "narrowest split")
    equal(editor.pctrcpTabSplit.Left, grid.Left + 30, "split bar")
end)

local function choose(dialog, name)
    for i = 0, dialog.cmbChooseRecipe.ListCount - 1 do
        if dialog.cmbChooseRecipe.List(i) == name then
            dialog.cmbChooseRecipe.ListIndex = i
            return dialog.cmbChooseRecipe.ItemData(i)
        end
    end
    error("no recipe " .. name)
end

define("sub-recipes", function()
    studio.Click("RCPU1")
    equal(editor.Caption, texts.title .. ": Cola")
    equal(editor.SubRecipeView, true)
    equal(editor.tdbRM.Columns("VarRecipe").Caption, texts.fileName)
    editor.MenuSwitcher("RCPU1", false)  -- as when the menu opens
    equal(offered("mnuMain"), {"mnuRecipeMembers", "mnuOptions"})
    equal(offered("mnuRecipeMember"), {"mnuRecipeMemberNewRecipe"})
    with("FSubRecipe", function(dialog)
        equal(dialog.Caption, text("Unterrezept auswählen", "Select Sub Recipe"))
        equal(dialog.cmbChooseRecipe.ListCount, 3)
        equal(dialog.cmbChooseRecipe.ListIndex, 0)
        dialog.cmbChooseRecipe.ListIndex = -1
        dialog.txtVarRecipe.Text = "Name.Cola"
        dialog.cmdOk.Click()
        checkMessages(texts.recipeMissing)
        equal(choose(dialog, "Rinse"), 2)
        dialog.txtVarRecipe.Text = "   "
        dialog.cmdOk.Click()
        checkMessages(texts.variableMissing)
        equal(dialog.Visible, true)
        studio.OnItemSelection(function(current)
            equal(current, "   ")
            return " Name.Rinse "
        end)
        dialog.cmdChooseItem.Click()
        studio.OnItemSelection(nil)
        equal(dialog.txtVarRecipe.Text, "Name.Rinse")
        dialog.cmdOk.Click()
    end, function() click("mnuRecipeMemberNewRecipe") end)
    members[5] = "1|Name.Rinse|2"
    checkDatabase()
    equal(editor.tdbRM.Text(0, "ChildID"), "Rinse")
    with("FSubRecipe", function(dialog) dialog.cmdCancel.Click() end,
         function() editor.tdbRM.KeyDown(key.f8, 0) end)
    checkDatabase()
    studio.Click("RCPU2")  -- saves the values of its sub-recipes itself
    with("FSubRecipe", function(dialog)
        choose(dialog, "Fill")
        dialog.cmdOk.Click()
    end, function() editor.tdbRM.KeyDown(key.f8, 0) end)
    members[6] = "2||3"
    studio.Click("RCPU1")
    with("FSubRecipe", function(dialog)
        choose(dialog, "Fill")
        dialog.txtVarRecipe.Text = "Name.Cola"
        dialog.cmdOk.Click()
    end, function() editor.mnuRecipeMember(1) end)
    members[7] = "1|Name.Cola|3"
end)

define("edits of sub-recipes", function()
    studio.Click("RCPU1")
    editor.tdbRM.Row = 1
    editor.MenuSwitcher("RCPU1", false)
    equal(tool("mnuRecipeMemberEditSubRecipe").Enabled, true)
    with("FSubRecipe", function(dialog)
        equal(dialog.cmbChooseRecipe.Text, "Fill")
        choose(dialog, "Rinse")
        dialog.txtVarRecipe.Text = "Start"
        dialog.cmdOk.Click()
    end, function() click("mnuRecipeMemberEditSubRecipe") end)
    members[7] = "1|Start|2"
    checkDatabase()
    with("FSubRecipe", function(dialog)
        choose(dialog, "Fill")
        dialog.txtVarRecipe.Text = "Name.Cola"
        dialog.cmdOk.Click()
    end, function() editor.tdbRM.KeyDown(key.f9, 0) end)
    members[7] = "1|Name.Cola|3"
    checkDatabase()
    with("FSubRecipe", function(dialog)
        choose(dialog, "Cola")
        dialog.cmdCancel.Click()
    end, function() editor.mnuRecipeMember(3) end)
end)

-- The editor stores a recipe that includes itself, directly or not; a check names it.
define("cycle", function()
    studio.Click("RCPU3")
    with("FSubRecipe", function(dialog)
        choose(dialog, "Cola")
        dialog.txtVarRecipe.Text = "Name.Cola"
        dialog.cmdOk.Click()
    end, function() click("mnuRecipeMemberNewRecipe") end)
    members[8] = "3|Name.Cola|1"
    equal(rows("Name", [[(WITH RECURSIVE below(Recipe, Start) AS (
            SELECT ChildID, ParentID FROM TrcpRecipeMember WHERE ChildID <> 0
            UNION SELECT m.ChildID, b.Start FROM TrcpRecipeMember m JOIN below b ON m.ParentID = b.Recipe
                WHERE m.ChildID <> 0)
        SELECT DISTINCT r.Name FROM below b JOIN TrcpRecipe r ON r.ID = b.Recipe WHERE b.Recipe = b.Start
        ORDER BY r.ID)]]),
          {"Cola", "Rinse", "Fill"}, "recipes in the cycle")
end)

define("deletes of members", function()
    studio.Click("RCPU3")
    equal(tool("mnuRecipeMemberDelete").Enabled, false)
    studio.Beeps()
    click("mnuRecipeMemberDelete")
    equal(studio.Beeps(), 1)
    editor.tdbRM.SelectRows({0})
    editor.MenuSwitcher("RCPU3", false)
    answering("no", function() click("mnuRecipeMemberDelete") end)
    checkMessages(texts.deleteMembers)
    checkDatabase()
    answering("yes", function() editor.tdbRM.KeyDown(key.delete, ctrl) end)
    checkMessages(texts.deleteMembers)
    members[8] = nil
    checkDatabase()
    studio.Click("RCPR1")
    editor.tdbRM.SelectRows({0, 2})
    equal(editor.tdbRM.SelectedCount, 2)
    answering("yes", function() editor.mnuRecipeMember(2) end)
    checkMessages(texts.deleteMembers)
    members = {"1|Pump|0", "2|Pump|0", "1|Name.Rinse|2", "2||3", "1|Name.Cola|3"}
    equal(editor.tdbRM.RowCount, 1)
end)

define("options", function()
    equal(editor.inits.ReadAValueFromCInits("RequestOnDelete", false), true)
    with("FConfigEditor", function(dialog)
        equal(dialog.Caption, "Optionen")
        equal(dialog.txtEditorFont.Text, "Arial")
        equal({dialog.chkDelQuestion.Value, dialog.chkShowStatusBar.Value, dialog.chkSaveOnExit.Value}, {1, 1, 1})
        dialog.chkDelQuestion.Click()
        dialog.cmdCancel.Click()
    end, function() click("mnuOptionOption") end)
    equal(editor.inits.ReadAValueFromCInits("RequestOnDelete", false), true)
    with("FConfigEditor", function(dialog)
        studio.OnFont(function(font)
            equal(font.Name, "Arial")
            font.Name, font.Size, font.Bold = "Courier New", 10, true
        end)
        dialog.cmdEditorFont.Click()
        studio.OnFont(nil)
        equal(dialog.txtEditorFont.Text, "Courier New")
        dialog.chkDelQuestion.Click()
        dialog.chkShowStatusBar.Click()
        dialog.cmdHelp.Click()
        dialog.cmdOk.Click()
    end, function() click("mnuOptionOption") end)
    equal(#studio.Help(), 1)
    equal({editor.Font.Name, editor.tdbRM.Font.Name, editor.tdbRM.Font.Weight}, {"Courier New", "Courier New", 700})
    equal(editor.inits.ReadAValueFromCInits("RequestOnDelete", true), false)
    equal(editor.sb.Visible, false)
    studio.Click("RCPR1")
    equal(tool("mnuOptionStatistik").Enabled, false)
    studio.Beeps()
    click("mnuOptionStatistik")
    equal(studio.Beeps(), 1)
    with("FConfigEditor", function(dialog)
        dialog.chkShowStatusBar.Click()
        dialog.cmdOk.Click()
    end, function() editor.mnuOption(6) end)
    studio.Click("RCPR1")
    equal(tool("mnuOptionStatistik").Enabled, true)
end)

define("deletes of recipes", function()
    -- The question is turned off.
    studio.Click("RCPE0")
    click("mnuRecipeNew")
    studio.Click("RCPR4")
    click("mnuRecipeDelete")
    checkDatabase()
    checkNodes()
    editor.inits.WriteAValueToCInits("RequestOnDelete", true)
    studio.Click("RCPR2")
    answering("no", function() click("mnuRecipeDelete") end)
    checkMessages(texts.deleteRecipe)
    checkDatabase()
    answering("yes", function() studio.KeyDown("RCPR2", key.delete, ctrl) end)
    checkMessages(texts.deleteRecipe)
    recipes = {"1|Cola", "3|Fill"}
    -- Where it was included, a member without a name stays.
    members = {"1|Pump|0", "1|Name.Rinse|2", "1|Name.Cola|3"}
    checkDatabase()
    checkNodes()
    studio.Click("RCPU1")
    equal({editor.tdbRM.Text(0, "ChildID"), editor.tdbRM.Text(1, "ChildID")}, {"", "Fill"})
    editor.inits.WriteAValueToCInits("RequestOnDelete", false)
    editor.tdbRM.SelectRows({0})
    editor.MenuSwitcher("RCPU1", false)
    studio.OnPopup(function() return "mnuRecipeMemberDelete" end)
    editor.tdbRM.MouseUp(2, 0, 300, 300)
    studio.OnPopup(nil)
    equal(studio.Popups(), {"mnuRecipeMember"})
    members = {"1|Pump|0", "1|Name.Cola|3"}
end)

define("tool bar", function()
    studio.Click("RCPR1")
    local function button(key) return editor.tbrfunc.Buttons(key).Enabled end
    equal({button("New"), button("Edit"), button("Delete"), button("Refresh")}, {true, true, true, true})
    with("FRecipe", function(dialog) dialog.cmdCancel.Click() end, function() editor.tbrfunc.Click("Edit") end)
    with("FMultiSelectItems", function(dialog) dialog.cmdCancel.Click() end,
         function() editor.tbrfunc.Click("New") end)
    editor.inits.WriteAValueToCInits("RequestOnDelete", true)
    answering("no", function() editor.tbrfunc.Click("Delete") end)
    checkMessages(texts.deleteRecipe)
    editor.inits.WriteAValueToCInits("RequestOnDelete", false)
    local before = editor
    editor.tbrfunc.Click("Refresh")
    equal(editor ~= before, true, "another window")
end)

define("statistic", function()
    click("mnuOptionStatistik")
    equal({editor.sb.Panels(1).Text, editor.sb.Panels(2).Text, editor.sb.Panels(3).Text},
          {"Func:Statistik", texts.recipeCount .. "2", texts.memberCount .. "2"})
end)

define("sibling add-ins", function()
    local shown = {}
    for tool, progId in pairs({mnuOptionConfiguration = "HXRecipeServerConfig.Connect",
                               mnuOptionReport = "HXProjectReport.Connect"}) do
        click(tool)
        local message = studio.Messages()[1]
        equal(message.text:match("^%-?%d+\r\n.") ~= nil, true, "number, line break and description")
        equal(studio.Components()[1].progId, progId)
        studio.RegisterComponent(progId, {Show = function(...) shown[progId] = {...} end})
        click(tool)
        local call = studio.Components()[1]
        equal(call.member, "Show")
        equal(#call.arguments, #shown[progId])
    end
    equal(shown["HXRecipeServerConfig.Connect"], {file, editor.hWnd})
    equal(shown["HXProjectReport.Connect"], {"HXRecipe", file, editor.hWnd})
end)

define("show the editor", function()
    studio.Click("RCPU1")
    studio.OnPopup(function(band)
        equal(band, "mnuShowEditorHelper")
        return "mnuShowEditor"
    end)
    editor.Close()
    equal(editor.Visible, false)
    studio.MouseUp("RCPU1", 2)
    studio.OnPopup(nil)
    equal(studio.Popups(), {"mnuShowEditorHelper"})
    equal(editor.Visible, true)
    editor.MenuSwitcher("RCPR1", true)
    editor.MenuSwitcher("RCPR1", true)
    equal(offered("mnuMain"), {"mnuRecipes", "mnuRecipeMembers", "mnuOptions", "mnuShowEditorSep", "mnuShowEditor"})
    editor.Hide()
    click("mnuShowEditor")
    equal(editor.Visible, true)
    editor.MenuSwitcher("RCPR1", false)
    equal(offered("mnuMain"), {"mnuRecipes", "mnuRecipeMembers", "mnuOptions"})
end)

define("keys of the explorer", function()
    studio.Beeps()
    studio.KeyDown("RCPR1", key.c, 0)
    equal(studio.Beeps(), 0)
    studio.KeyDown("RCPR1", key.c, ctrl)
    equal(studio.Beeps(), 1)
    studio.Help()
    for _, node in ipairs({"RCPE0", "RCPR1", "RCPU1"}) do studio.KeyDown(node, key.f1) end
    local contexts = {}
    for i, help in ipairs(studio.Help()) do contexts[i] = help.context end
    equal(contexts, {100001, 100019, 100020})
    studio.Click("RCPR3")
    studio.Select("RCPR1")
    studio.KeyDown("RCPR1", key.f6)
    equal(editor.Caption, texts.title .. ": Cola")
    for _, code in ipairs({key.f8, key.f9, key.delete}) do studio.KeyDown("RCPU1", code, ctrl) end
    studio.KeyDown("RCPR1", key.delete)
end)

define("refresh", function()
    local before = editor
    studio.Click("RCPR1")
    click("mnuOptionActualize")
    equal(editor ~= before, true, "another window")
    equal(editor.Caption, texts.title)
    equal(editor.tdbRM.RowCount, 0)
    equal(editor.Font.Name, "Courier New")
end)

define("close", function()
    local window = editor
    studio.CloseProject()
    equal(editor, nil, "editor of a closed project")
    equal(addin, nil, "add-in of a closed project")
    equal(#studio.Nodes(), 0)
    equal(window.Visible, false)
    equal(pcall(project.Query, "SELECT 1"), false, "a query without a project")
end)

define("reopen", function()
    studio.OpenProject("day")
    equal(#studio.Nodes(), 1)
    studio.Expand("RCPE0")
    studio.Click("RCPR1")
    equal(addin.ProjectPath, file)
    equal({editor.Font.Name, editor.tdbRM.Font.Name, editor.tdbRM.Font.Weight}, {"Courier New", "Courier New", 700})
    equal(editor.tdbRM.Columns("VarRecipe").Width, 2000.0)
    equal(editor.tdbRM.Columns("ChildID").Visible, false)
    equal(editor.inits.ReadAValueFromCInits("RequestOnDelete", true), false)
    equal(editor.tdbRM.Text(0, "VarRecipe"), "Pump")
    equal(studio.Variables()[1], "Mixer.Heat")
end)

-- Only the choice itself is kept.
define("options that are not saved", function()
    with("FConfigEditor", function(dialog)
        dialog.chkSaveOnExit.Click()
        dialog.chkDelQuestion.Click()
        dialog.cmdOk.Click()
    end, function() click("mnuOptionOption") end)
    editor.tdbRM.Columns("VarRecipe").Width = 3333
    studio.CloseProject()
    studio.OpenProject(file)
    studio.Expand("RCPE0")
    studio.Click("RCPR1")
    equal(editor.tdbRM.Columns("VarRecipe").Width, 2000.0)
    equal(editor.inits.ReadAValueFromCInits("RequestOnDelete", true), false)
    equal(editor.inits.ReadAValueFromCInits("SaveOnExit", true), false)
end)

define("close for the day", function() studio.CloseProject() end)

for _, each in ipairs(steps) do
    if not step(each.name, each.work) then break end
end
