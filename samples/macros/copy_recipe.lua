-- Copies a recipe with its properties, its variables and its sub-recipes.
--
--   hxrecipe run --project plant.hxs copy_recipe.lua RECIPE NEWNAME [deep]
--
-- RECIPE is the name of the recipe, NEWNAME that of the copy. The copy includes the same sub-recipes as the original;
-- with "deep" each sub-recipe, and theirs, is copied too, once, under its own name with `deepSuffix` behind it. A
-- recipe that includes itself, directly or not, then gives a copy that includes itself.
--
-- In the studio, where there are no arguments, the recipe chosen in the explorer is copied and `copySuffix` put behind
-- its name.

local copySuffix = " (copy)"
local deepSuffix = " (copy)"

local function fail(text, ...) error(text:format(...), 0) end

local textFields = {"txtRecipeName", "txtDescription", "cboFilePath", "txtFileExtension", "txtComment", "txtVarLoad",
                    "txtVarSave", "txtVarRead", "txtVarWrite"}
local boxes = {"chkEnabled", "chkSaveChanges", "chkCryptEngine", "chkSaveSubRecipes", "chkWriteThru", "chkSaveThru"}

-- Reading ------------------------------------------------------------------------------------------------------------

-- The database is only read; it is changed by the editor alone.
local recipes, byName = {}, {}
for _, row in ipairs(project.Query("SELECT ID, Name FROM TrcpRecipe")) do
    recipes[row.ID] = {id = row.ID, name = row.Name, variables = {}, subRecipes = {}}
    byName[row.Name:lower()] = recipes[row.ID]
end
for _, row in ipairs(project.Query("SELECT ParentID, ChildID, VarRecipe FROM TrcpRecipeMember ORDER BY ID")) do
    local recipe = recipes[row.ParentID]
    local variable = row.VarRecipe == null and "" or row.VarRecipe
    if recipe and row.ChildID == 0 then table.insert(recipe.variables, variable)
    elseif recipe then table.insert(recipe.subRecipes, {id = row.ChildID, variable = variable}) end
end

local function readArguments(arguments)
    if #arguments == 0 then
        local id = (studio.Selected() or ""):match("^RCP[RU](%d+)$")
        if not id then fail("Choose a recipe in the explorer, or give RECIPE and NEWNAME") end
        local source = recipes[tonumber(id)]
        return source, source.name .. copySuffix, false
    end
    if #arguments < 2 or #arguments > 3 then fail("Usage: copy_recipe.lua RECIPE NEWNAME [deep]") end
    local name, newName, mode = table.unpack(arguments)
    if mode and mode ~= "deep" then fail("%q is no argument; the last one can be \"deep\"", mode) end
    local source = byName[name:lower()]
    if not source then fail("There is no recipe %q", name) end
    return source, newName, mode == "deep"
end

-- The recipes to copy with their new names: the recipe itself, and when `deep` all that it includes, each once.
local function plan(source, newName, deep)
    local copies, seen = {{source = source, name = newName}}, {[source.id] = true}
    local next = 1
    while deep and next <= #copies do
        for _, member in ipairs(copies[next].source.subRecipes) do
            local included = recipes[member.id]
            if included and not seen[member.id] then
                seen[member.id] = true
                copies[#copies + 1] = {source = included, name = included.name .. deepSuffix}
            end
        end
        next = next + 1
    end
    return copies
end

-- Everything that could fail is asked before anything is made.
local function check(copies)
    local taken = {}
    for _, copy in ipairs(copies) do
        local key = copy.name:lower()
        if copy.name:match("^%s*$") then fail("The new name is empty") end
        if byName[key] or taken[key] then fail("The recipe %q exists already", copy.name) end
        taken[key] = true
        for _, member in ipairs(copy.source.subRecipes) do
            if not recipes[member.id] then
                fail("The recipe %q contains a sub-recipe that does not exist (ID %d); delete that member first",
                     copy.source.name, member.id)
            end
        end
    end
end

-- Working the editor -------------------------------------------------------------------------------------------------

-- Clicks a tool while `work` uses the dialog of that name. What the editor complains about ends the macro.
local function command(tool, dialog, work)
    if dialog then studio.OnDialog(dialog, work) end
    studio.Messages()
    editor.abr.Click(tool)
    if dialog then studio.OnDialog(dialog, nil) end
    local message = studio.Messages()[1]
    if message then fail("The editor says: %s", message.text) end
end

local function readProperties(recipe)
    local properties = {}
    studio.Click("RCPR" .. recipe.id)
    command("mnuRecipeEdit", "FRecipe", function(dialog)
        for _, name in ipairs(textFields) do properties[name] = dialog[name].Text end
        for _, name in ipairs(boxes) do properties[name] = dialog[name].Value end
        properties.relative = dialog.optRecipeAbsrel(1).Value
        properties.factor, properties.factorVariable = dialog.txtStandardValue.Text, dialog.txtVarSetValue.Text
        dialog.cmdCancel.Click()
    end)
    return properties
end

local function writeProperties(dialog, name, properties)
    dialog.txtName.Text = name
    -- First, because absolute values reset factor and variable.
    dialog.optRecipeAbsrel(properties.relative and 1 or 0).Click()
    if properties.relative then
        dialog.txtStandardValue.Text, dialog.txtVarSetValue.Text = properties.factor, properties.factorVariable
    end
    for _, field in ipairs(textFields) do dialog[field].Text = properties[field] end
    for _, box in ipairs(boxes) do dialog[box].Value = properties[box] end
    dialog.cmdOk.Click()
end

local function create(copy)
    local properties = readProperties(copy.source)
    studio.Click("RCPE0")
    command("mnuRecipeNew")
    copy.id = project.Query("SELECT MAX(ID) AS ID FROM TrcpRecipe")[1].ID
    studio.Click("RCPR" .. copy.id)
    command("mnuRecipeEdit", "FRecipe", function(dialog) writeProperties(dialog, copy.name, properties) end)
    if #copy.source.variables > 0 then
        command("mnuRecipeMemberNewVariable", "FMultiSelectItems", function(dialog)
            dialog.hxMI.SelectedItems = copy.source.variables
            dialog.cmdOk.Click()
        end)
    end
end

local function choose(dialog, id)
    local list = dialog.cmbChooseRecipe
    for i = 0, list.ListCount - 1 do
        if list.ItemData(i) == id then
            list.ListIndex = i
            return
        end
    end
    fail("The dialog does not offer the recipe with the ID %d", id)
end

-- Behind the variables: choosing these replaces all members.
local function addSubRecipes(copy, idOfCopy)
    studio.Click("RCPU" .. copy.id)
    for _, member in ipairs(copy.source.subRecipes) do
        command("mnuRecipeMemberNewRecipe", "FSubRecipe", function(dialog)
            choose(dialog, idOfCopy[member.id] or member.id)
            dialog.txtVarRecipe.Text = member.variable
            dialog.cmdOk.Click()
        end)
    end
end

local source, newName, deep = readArguments({...})
local copies = plan(source, newName, deep)
check(copies)
studio.Expand("RCPE0")  -- opens the editor
local idOfCopy = {}
for _, copy in ipairs(copies) do
    create(copy)
    if deep then idOfCopy[copy.source.id] = copy.id end
end
for _, copy in ipairs(copies) do
    addSubRecipes(copy, idOfCopy)
    print(("copied %q to %q: %d variables, %d sub-recipes"):format(copy.source.name, copy.name, #copy.source.variables,
                                                                   #copy.source.subRecipes))
end
studio.Click("RCPR" .. copies[1].id)
