-- Renames variables by a rule, wherever recipes name them.
--
-- That is: as members, as file names of sub-recipes and as trigger, description and factor variables of recipes.
--
--   hxrecipe run --project plant.hxs rename_variables.lua PATTERN REPLACEMENT [apply]
--
-- PATTERN and REPLACEMENT are those of Lua's string.gsub: "^Mixer1%." and "Mixer2." renames Mixer1.Level to
-- Mixer2.Level; "%1" in the replacement stands for the first part in parentheses. In the studio, where there are no
-- arguments, the constants below are taken.
--
-- Without "apply" the macro prints what would change and changes nothing. Every new name must be in the project's
-- variable list, and no recipe may get the same variable twice; else nothing is changed either.

local defaultPattern, defaultReplacement = "^Mixer1%.", "Mixer2."
local applyWithoutArguments = false

-- The columns of a recipe that name variables, and their fields in the recipe's dialog.
local fields = {
    {column = "VarRecipeName", control = "txtRecipeName"}, {column = "VarDescription", control = "txtDescription"},
    {column = "VarLoad", control = "txtVarLoad"}, {column = "VarSave", control = "txtVarSave"},
    {column = "VarRead", control = "txtVarRead"}, {column = "VarWrite", control = "txtVarWrite"},
    {column = "VarSetValue", control = "txtVarSetValue"},
}

local function fail(text, ...) error(text:format(...), 0) end

-- The rule -----------------------------------------------------------------------------------------------------------

local function readArguments(arguments)
    if #arguments == 0 then return defaultPattern, defaultReplacement, applyWithoutArguments end
    local pattern, replacement, mode = table.unpack(arguments)
    if #arguments < 2 or #arguments > 3 then fail("Usage: rename_variables.lua PATTERN REPLACEMENT [apply]") end
    if mode and mode ~= "apply" then fail("%q is no argument; the last one can be \"apply\"", mode) end
    if pattern == "" then fail("The pattern is empty") end
    return pattern, replacement, mode == "apply"
end

local pattern, replacement, apply = readArguments({...})

-- The new name; nil when the rule does not touch the old one.
local function renamed(name)
    local ok, result = pcall(string.gsub, name, pattern, replacement)
    if not ok then fail("The rule %q -> %q is not one: %s", pattern, replacement, result) end
    if result == name then return nil end
    if result:match("^%s*$") then fail("The rule leaves nothing of %q", name) end
    return result
end

-- What would change --------------------------------------------------------------------------------------------------

-- The project is only read here; {recipe, name, column or member, old, new}.
local function plan()
    renamed("")  -- a pattern that is none is found even in an empty project
    local changes = {}
    for _, recipe in ipairs(project.Query("SELECT * FROM TrcpRecipe ORDER BY ID")) do
        for _, field in ipairs(fields) do
            local old = recipe[field.column]
            local new = old and old ~= null and old ~= "" and renamed(old)
            if new then
                changes[#changes + 1] = {recipe = recipe.ID, name = recipe.Name, field = field, old = old, new = new}
            end
        end
    end
    local members = project.Query([[SELECT m.ID, m.ParentID, m.ChildID, m.VarRecipe, r.Name FROM TrcpRecipeMember m
                                    JOIN TrcpRecipe r ON r.ID = m.ParentID WHERE m.VarRecipe <> '' ORDER BY m.ID]])
    for _, member in ipairs(members) do
        local new = renamed(member.VarRecipe)
        if new then
            changes[#changes + 1] = {recipe = member.ParentID, name = member.Name, member = member.ID,
                                     subRecipe = member.ChildID ~= 0, old = member.VarRecipe, new = new}
        end
    end
    return changes
end

local function requireKnown(changes)
    local known = {}
    for _, name in ipairs(studio.Variables()) do known[name] = true end
    for _, change in ipairs(changes) do
        if not known[change.new] then
            fail("%q would become %q, which is not in the variable list", change.old, change.new)
        end
    end
end

-- A recipe's variables, as they would be, must differ.
local function requireDistinct(changes)
    local change = {}
    for _, each in ipairs(changes) do
        if each.member then change[each.member] = each end
    end
    local taken = {}
    for _, member in ipairs(project.Query([[SELECT ID, ParentID, VarRecipe FROM TrcpRecipeMember
                                            WHERE ChildID = 0 AND VarRecipe <> '']])) do
        local own = change[member.ID]
        local name = own and own.new or member.VarRecipe
        local key = member.ParentID .. ":" .. name:lower()
        local changed = own or taken[key]
        if taken[key] ~= nil and changed then
            fail("The recipe %q would have the variable %q twice", changed.name, name)
        end
        taken[key] = own or false
    end
end

local function show(changes)
    for _, change in ipairs(changes) do
        local place = change.field and change.field.column or change.subRecipe and "sub-recipe" or "member"
        print(("%s, %s: %s -> %s"):format(change.name, place, change.old, change.new))
    end
end

-- Working the editor -------------------------------------------------------------------------------------------------

-- What the editor complains about ends the macro.
local function requireSilence()
    local message = studio.Messages()[1]
    if message then fail("The editor says: %s", message.text) end
end

local function renameFields(changes)
    studio.OnDialog("FRecipe", function(dialog)
        for _, change in ipairs(changes) do dialog[change.field.control].Text = change.new end
        dialog.cmdOk.Click()
    end)
    editor.abr.Click("mnuRecipeEdit")
    studio.OnDialog("FRecipe", nil)
    requireSilence()
end

-- Types a new name into a cell of the grid, as the user does.
local function typeName(each, name)
    local grid = editor.tdbRM
    grid.Row = each.row
    grid.SetText(each.row, "VarRecipe", name)
    grid.Update()
    requireSilence()
end

-- The rows of the shown node that get a new name, and the row that has a name at present.
local function rowsToRename(changes)
    local grid, new, rows, holder = editor.tdbRM, {}, {}, {}
    for _, change in ipairs(changes) do new[change.member] = change.new end
    for row = 0, grid.RowCount - 1 do
        local old, target = grid.Text(row, "VarRecipe"), new[grid.Value(row, "ID")]
        holder[old:lower()] = row
        if target then rows[#rows + 1] = {row = row, old = old, new = target} end
    end
    return rows, holder
end

local function renameSubRecipes(changes)
    for _, each in ipairs((rowsToRename(changes))) do typeName(each, each.new) end
end

-- No recipe can have a variable twice even for a moment: a name that another row still has waits until that row has got
-- its own. Rows that exchange their names do so by a name in between.
local function renameVariables(changes)
    local waiting, holder = rowsToRename(changes)
    local function move(each, name)
        typeName(each, name)
        holder[each.old:lower()], holder[name:lower()] = nil, each.row
        each.old = name
    end
    while #waiting > 0 do
        local blocked = {}
        for _, each in ipairs(waiting) do
            local other = holder[each.new:lower()]
            if other == nil or other == each.row then move(each, each.new) else blocked[#blocked + 1] = each end
        end
        if #blocked == #waiting then move(blocked[1], blocked[1].old .. "~") end
        waiting = blocked
    end
end

-- All that one command or one node of the explorer shows is done together.
local function carryOut(changes)
    local steps, order = {}, {}
    for _, change in ipairs(changes) do
        local work = change.field and renameFields or change.subRecipe and renameSubRecipes or renameVariables
        local key = (change.subRecipe and "RCPU" or "RCPR") .. change.recipe
        local name = key .. tostring(change.field ~= nil)
        if not steps[name] then
            steps[name] = {key = key, work = work, changes = {}}
            order[#order + 1] = steps[name]
        end
        table.insert(steps[name].changes, change)
    end
    studio.Expand("RCPE0")  -- opens the editor
    studio.Messages()
    for _, step in ipairs(order) do
        studio.Click(step.key)
        step.work(step.changes)
    end
end

local changes = plan()
show(changes)
requireKnown(changes)
requireDistinct(changes)
if apply then
    carryOut(changes)
    print(#changes .. " places renamed")
else
    print(#changes .. " places would be renamed; add \"apply\" to do it")
end
