-- Checks a project and prints what it finds, a line each, with severity, place and what to do.
--
--   hxrecipe run --project plant.hxs check_project.lua [errors]
--
-- With "errors" warnings are neither printed nor counted. The studio lists the findings; a click leads to the place.
-- With findings hxrecipe's exit status is 1, without it is 0. Nothing is changed. To add a rule of your own, write a
-- function like those below and call it at the end.

local function fail(text, ...) error(text:format(...), 0) end

local onlyErrors = false
for _, argument in ipairs({...}) do
    if argument ~= "errors" then fail("%q is no argument; \"errors\" is the only one", argument) end
    onlyErrors = true
end

-- The project --------------------------------------------------------------------------------------------------------

-- A column that can be null gives the empty text.
local function text(value) return (value == nil or value == null) and "" or value end

local recipes, order = {}, {}
for _, row in ipairs(project.Query("SELECT * FROM TrcpRecipe ORDER BY ID")) do
    recipes[row.ID] = {row = row, id = row.ID, name = row.Name, members = 0, subRecipes = {}}
    order[#order + 1] = recipes[row.ID]
end
local members = project.Query("SELECT ID, ParentID, ChildID, VarRecipe FROM TrcpRecipeMember ORDER BY ID")
for _, member in ipairs(members) do
    local recipe = recipes[member.ParentID]
    if recipe then
        recipe.members = recipe.members + 1
        if member.ChildID ~= 0 then table.insert(recipe.subRecipes, member) end
    end
end
local known = {}
for _, name in ipairs(studio.Variables()) do known[name:lower()] = true end

-- Findings -----------------------------------------------------------------------------------------------------------

local findings = 0
-- The recipe (of `recipes`) and the member (a row), where it is one, are where the studio's list leads.
local function found(severity, recipe, member, problem, advice)
    if severity ~= "error" and onlyErrors then return end
    findings = findings + 1
    local place = recipe and recipe.name or "no recipe"
    if member then place = ("%s, member %d"):format(place, member.ID) end
    print(("%s: %s: %s %s"):format(severity, place, problem, advice))
    studio.Found(("%s: %s"):format(place, problem), recipe and recipe.id or 0, member and member.ID or 0,
                 member ~= nil and member.ChildID ~= 0)
end

local variableColumns = {"VarRecipeName", "VarDescription", "VarLoad", "VarSave", "VarRead", "VarWrite", "VarSetValue"}
local triggerColumns = {"VarLoad", "VarSave", "VarRead", "VarWrite"}

local function checkMembers()
    for _, member in ipairs(members) do
        local recipe = recipes[member.ParentID]
        if not recipe then
            found("error", nil, member, ("There is no recipe with the ID %d."):format(member.ParentID), "Delete the member.")
        end
        local variable = text(member.VarRecipe)
        if variable ~= "" and not known[variable:lower()] then
            found("warning", recipe, member, ("The variable %q is not in the variable list."):format(variable),
                  "Add it to the list or choose another one.")
        end
    end
end

local function checkSubRecipes(recipe)
    for _, member in ipairs(recipe.subRecipes) do
        if not recipes[member.ChildID] then
            found("error", recipe, member, ("The sub-recipe with the ID %d does not exist."):format(member.ChildID),
                  "Delete the member or choose another recipe.")
        end
        local savesItself = recipe.row.SaveSubRecipes ~= 0 and recipe.row.SaveSubRecipes ~= false
        if text(member.VarRecipe) == "" and not savesItself then
            found("error", recipe, member, "The sub-recipe has no variable for its file name.",
                  "Choose one, or let the recipe save the values of its sub-recipes.")
        end
    end
end

local function checkVariables(recipe)
    for _, column in ipairs(variableColumns) do
        local variable = text(recipe.row[column])
        if variable ~= "" and not known[variable:lower()] then
            found("warning", recipe, nil, ("%s names %q, which is not in the variable list."):format(column, variable),
                  "Add it to the list or choose another one.")
        end
    end
end

local function checkTriggers()
    local first = {}
    for _, recipe in ipairs(order) do
        for _, column in ipairs(triggerColumns) do
            local variable = text(recipe.row[column]):lower()
            local other = first[variable]
            if variable ~= "" and other and other ~= recipe then
                found("warning", recipe, nil,
                      ("%s %q triggers the recipe %q too."):format(column, text(recipe.row[column]), other.name),
                      "Give each recipe a trigger of its own.")
            end
            first[variable] = other or recipe
        end
    end
end

local function checkEmpty(recipe)
    if recipe.members == 0 then
        found("warning", recipe, nil, "The recipe has no members.", "Add variables, or delete the recipe.")
    end
end

-- Walks down the sub-recipes; one that is still on the way down when it is met again closes a cycle.
local function checkCycles()
    local state, way = {}, {}
    local function visit(recipe)
        state[recipe] = "on the way"
        way[#way + 1] = recipe.name
        recipe.depth = #way
        for _, member in ipairs(recipe.subRecipes) do
            local included = recipes[member.ChildID]
            if included and state[included] == "on the way" then
                local from = included.depth
                found("error", included, nil,
                      ("The recipe contains itself: %s > %s."):format(table.concat(way, " > ", from), included.name),
                      "Delete one of these sub-recipes.")
            elseif included and not state[included] then
                visit(included)
            end
        end
        way[#way] = nil
        state[recipe] = "done"
    end
    for _, recipe in ipairs(order) do
        if not state[recipe] then visit(recipe) end
    end
end

checkMembers()
for _, recipe in ipairs(order) do
    checkSubRecipes(recipe)
    checkVariables(recipe)
    checkEmpty(recipe)
end
checkTriggers()
checkCycles()

print(("%d recipes, %d members, %d findings"):format(#order, #members, findings))
