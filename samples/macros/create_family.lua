-- Creates a family of recipes from a list.
--
--   hxrecipe run --project plant.hxs create_family.lua [LIST.csv]
--   hxrecipe run --project plant.hxs create_family.lua NAME NAME...
--
-- LIST.csv (or .txt) lies in the project's folder; without an argument it is `defaultList`. It is text in UTF-8. Its
-- first line names the columns, separated by ";" and in any order; every further line is a recipe. Nothing is quoted:
-- no field can hold a ";". Empty lines and lines that begin with "#" are passed over.
--
--   Name;Comment;FileExtension;StandardValue;Variables
--   Cola 0,5 l;Small bottle;rz;1;Mixer.Syrup, Mixer.Water
--   Cola 1,0 l;Large bottle;rz;2;Mixer.Syrup, Mixer.Water
--
-- Name must be there. The other columns are those of a recipe's row (`fields` below) and Variables, the variable
-- members with commas between them. An empty field leaves what a new recipe has. Arguments that are no list are names
-- of recipes.
--
-- The list is read and checked whole before the first recipe is made; a fault is named with its line, and nothing is
-- changed then.

local defaultList = "recipes.csv"
local separator = ";"

-- The columns of a list and the text fields of the recipe's dialog that they go to.
local fields = {
    Name = "txtName", VarRecipeName = "txtRecipeName", FilePath = "cboFilePath", FileExtension = "txtFileExtension",
    Comment = "txtComment", VarDescription = "txtDescription", VarLoad = "txtVarLoad", VarSave = "txtVarSave",
    VarRead = "txtVarRead", VarWrite = "txtVarWrite", VarSetValue = "txtVarSetValue",
    StandardValue = "txtStandardValue",
}
local variablesColumn = "Variables"
local longestExtension = 2  -- the dialog cuts what is longer

local function fail(text, ...) error(text:format(...), 0) end

local function trim(text) return (text:gsub("^%s+", ""):gsub("%s+$", "")) end

local function split(text, by)
    local parts = {}
    for part in (text .. by):gmatch("(.-)" .. by) do parts[#parts + 1] = trim(part) end
    return parts
end

-- A set of the names in a list, ignoring the case of ASCII letters as a key.
local function setOf(names)
    local set = {}
    for _, name in ipairs(names) do set[name:lower()] = true end
    return set
end

-- Reading ------------------------------------------------------------------------------------------------------------

local function readHeader(line, number)
    local columns = split(line, separator)
    local seen = {}
    for _, column in ipairs(columns) do
        if not fields[column] and column ~= variablesColumn then
            fail("line %d: there is no column %q", number, column)
        end
        if seen[column] then fail("line %d: the column %q stands there twice", number, column) end
        seen[column] = true
    end
    if not seen.Name then fail("line %d: the column \"Name\" is missing", number) end
    return columns
end

local function readRecipe(line, number, columns)
    local values = split(line, separator)
    if #values ~= #columns then fail("line %d: %d fields are expected, %d found", number, #columns, #values) end
    local recipe = {place = "line " .. number, variables = {}}
    for i, column in ipairs(columns) do
        if column ~= variablesColumn then recipe[column] = values[i]
        elseif values[i] ~= "" then recipe.variables = split(values[i], ",") end
    end
    return recipe
end

local function readList(name)
    local file, problem = io.open(name)
    if not file then fail("The list cannot be read: %s", problem) end
    local recipes, columns, number = {}, nil, 0
    for line in file:lines() do
        number = number + 1
        line = trim(number == 1 and line:gsub("^\xEF\xBB\xBF", "") or line)
        if not utf8.len(line) then fail("line %d: the text is not UTF-8", number) end
        if line ~= "" and line:sub(1, 1) ~= "#" then
            if columns then recipes[#recipes + 1] = readRecipe(line, number, columns)
            else columns = readHeader(line, number) end
        end
    end
    file:close()
    if not columns then fail("The list %q is empty", name) end
    return recipes
end

-- What the arguments ask for: one list, or names.
local function wanted(arguments)
    local first = arguments[1] or defaultList
    local suffix = first:lower():match("%.[^.]*$")
    if suffix == ".csv" or suffix == ".txt" then
        if #arguments > 1 then fail("Give one list, or names of recipes") end
        return readList(first)
    end
    local recipes = {}
    for i, name in ipairs(arguments) do recipes[i] = {place = "argument " .. i, Name = trim(name), variables = {}} end
    return recipes
end

-- Checking -----------------------------------------------------------------------------------------------------------

local function checkNumber(recipe)
    local text = recipe.StandardValue
    if not text or text == "" or text:match("^%d+[.,]?%d*$") then return end
    fail("%s: the StandardValue %q is not a number", recipe.place, text)
end

local function checkVariables(recipe, known)
    local seen = {}
    for _, name in ipairs(recipe.variables) do
        if not known[name:lower()] then
            fail("%s: the variable %q is not in the variable list", recipe.place, name)
        end
        if seen[name:lower()] then fail("%s: the variable %q stands there twice", recipe.place, name) end
        seen[name:lower()] = true
    end
    for column, value in pairs(recipe) do
        local isVariable = fields[column] and column:sub(1, 3) == "Var" and value ~= ""
        if isVariable and not known[value:lower()] then
            fail("%s: the variable %q (%s) is not in the variable list", recipe.place, value, column)
        end
    end
end

local function check(recipes)
    if #recipes == 0 then fail("The list names no recipe") end
    local known = setOf(studio.Variables())
    local taken = {}
    for _, row in ipairs(project.Query("SELECT Name FROM TrcpRecipe")) do taken[row.Name:lower()] = "in the project" end
    for _, recipe in ipairs(recipes) do
        local name = recipe.Name
        if name == "" then fail("%s: the name is empty", recipe.place) end
        local where = taken[name:lower()]
        if where then fail("%s: the recipe %q exists already, %s", recipe.place, name, where) end
        taken[name:lower()] = "in " .. recipe.place
        if utf8.len(recipe.FileExtension or "") > longestExtension then
            fail("%s: the FileExtension %q is longer than two characters", recipe.place, recipe.FileExtension)
        end
        checkNumber(recipe)
        checkVariables(recipe, known)
    end
end

-- Working the editor -------------------------------------------------------------------------------------------------

-- Clicks a tool while `fill` works on the dialog of that name. What the editor complains about ends the macro.
local function command(tool, dialog, fill)
    if dialog then studio.OnDialog(dialog, function(shown) fill(shown) shown.cmdOk.Click() end) end
    studio.Messages()
    editor.abr.Click(tool)
    if dialog then studio.OnDialog(dialog, nil) end
    local message = studio.Messages()[1]
    if message then fail("The editor says: %s", message.text) end
end

-- The number of the recipe that the editor has just made under a name of its own.
local function newRecipe()
    studio.Click("RCPE0")
    command("mnuRecipeNew")
    return project.Query("SELECT MAX(ID) AS ID FROM TrcpRecipe")[1].ID
end

local function fillRecipe(dialog, recipe)
    -- The choice of absolute or relative values comes first: it sets the norm factor.
    local factor = recipe.StandardValue or ""
    if factor ~= "" and tonumber((factor:gsub(",", "."))) ~= 0 then dialog.optRecipeAbsrel(1).Click() end
    for column, control in pairs(fields) do
        local value = recipe[column]
        if value and value ~= "" then dialog[control].Text = value end
    end
end

local function create(recipe)
    local id = newRecipe()
    studio.Click("RCPR" .. id)
    command("mnuRecipeEdit", "FRecipe", function(dialog) fillRecipe(dialog, recipe) end)
    if #recipe.variables > 0 then
        command("mnuRecipeMemberNewVariable", "FMultiSelectItems",
                function(dialog) dialog.hxMI.SelectedItems = recipe.variables end)
    end
    print(("created %q with %d variables"):format(recipe.Name, #recipe.variables))
end

local recipes = wanted({...})
check(recipes)
studio.Expand("RCPE0")  -- opens the editor
for _, recipe in ipairs(recipes) do create(recipe) end
print(#recipes .. " recipes created")
