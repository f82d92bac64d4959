-- Writes a report of all recipes into a file in the project's folder.
--
--   hxrecipe run --project plant.hxs export_report.lua [FILE.md|FILE.html]
--
-- The extension chooses Markdown or HTML; without an argument the file is `defaultFile`. A file that is there already
-- is replaced only when it is a report of this macro: its first line says so. Nothing in the project is changed.

local defaultFile = "recipes.md"
local mark = "<!-- recipe report -->"

local function fail(text, ...) error(text:format(...), 0) end

-- Two ways to write --------------------------------------------------------------------------------------------------

-- Each has a way to write text so that it stands for itself, and functions that give lines.
local markdown = {}
function markdown.escape(text) return (text:gsub("[\\`*_{}%[%]<>#|~&]", "\\%0"):gsub("%s*\n%s*", " ")) end
function markdown.begin(title) return "# " .. title end
function markdown.heading(title) return "\n## " .. title .. "\n" end
function markdown.row(...) return "| " .. table.concat({...}, " | ") .. " |" end
function markdown.header(...) return markdown.row(...) .. "\n" .. ("|---"):rep(select("#", ...)) .. "|" end
function markdown.endTable() return "" end
function markdown.finish() return "" end

local html = {}
local entities = {["&"] = "&amp;", ["<"] = "&lt;", [">"] = "&gt;", ['"'] = "&quot;", ["'"] = "&#39;"}
local function cells(kind, ...)
    return ("<tr><%s>%s</%s></tr>"):format(kind, table.concat({...}, ("</%s><%s>"):format(kind, kind)), kind)
end
function html.escape(text) return (text:gsub("[&<>\"']", entities)) end
function html.begin(title)
    local head = '<!DOCTYPE html>\n<html lang="en">\n<head><meta charset="utf-8"><title>%s</title></head>\n'
    return (head .. "<body>\n<h1>%s</h1>"):format(title, title)
end
function html.heading(title) return "<h2>" .. title .. "</h2>" end
function html.header(...) return "<table>\n" .. cells("th", ...) end
function html.row(...) return cells("td", ...) end
function html.endTable() return "</table>" end
function html.finish() return "</body>\n</html>" end

local writers = {md = markdown, html = html}

-- What is written ----------------------------------------------------------------------------------------------------

local properties = {
    {"Recipe file name", "VarRecipeName"}, {"Path", "FilePath"}, {"Extension", "FileExtension"},
    {"Active", "Enabled"}, {"Comment", "Comment"}, {"Description", "VarDescription"}, {"Load trigger", "VarLoad"},
    {"Save trigger", "VarSave"}, {"Read trigger", "VarRead"}, {"Write trigger", "VarWrite"},
    {"Norm factor", "StandardValue"}, {"Multiply factor", "VarSetValue"},
}
local yesNo = {Enabled = true}

local function shown(column, value)
    if value == nil or value == null then return "" end
    if yesNo[column] then return value ~= 0 and value ~= false and "yes" or "no" end
    return type(value) == "number" and ("%.15g"):format(value) or tostring(value)
end

local function readRecipes()
    local recipes, byId = project.Query("SELECT * FROM TrcpRecipe ORDER BY Name"), {}
    for _, recipe in ipairs(recipes) do
        byId[recipe.ID] = recipe
        recipe.variables, recipe.subRecipes, recipe.usedBy = {}, {}, {}
    end
    for _, member in ipairs(project.Query("SELECT * FROM TrcpRecipeMember ORDER BY ID")) do
        local recipe, included = byId[member.ParentID], byId[member.ChildID]
        if recipe and member.ChildID == 0 then table.insert(recipe.variables, shown("VarRecipe", member.VarRecipe))
        elseif recipe then
            local name = included and included.Name or "does not exist"
            table.insert(recipe.subRecipes, {name, shown("VarRecipe", member.VarRecipe)})
            if included then table.insert(included.usedBy, recipe.Name) end
        end
    end
    return recipes
end

local function writeRecipe(put, writer, recipe)
    put(writer.heading(writer.escape(recipe.Name)))
    put(writer.header("Property", "Value"))
    for _, property in ipairs(properties) do
        local value = shown(property[2], recipe[property[2]])
        if value ~= "" then put(writer.row(property[1], writer.escape(value))) end
    end
    if #recipe.usedBy > 0 then put(writer.row("Used by", writer.escape(table.concat(recipe.usedBy, ", ")))) end
    put(writer.endTable())
    if #recipe.variables > 0 then
        put(writer.header("Variable"))
        for _, variable in ipairs(recipe.variables) do put(writer.row(writer.escape(variable))) end
        put(writer.endTable())
    end
    if #recipe.subRecipes > 0 then
        put(writer.header("Sub-recipe", "File name"))
        for _, member in ipairs(recipe.subRecipes) do
            put(writer.row(writer.escape(member[1]), writer.escape(member[2])))
        end
        put(writer.endTable())
    end
end

-- The file -----------------------------------------------------------------------------------------------------------

local arguments = {...}
if #arguments > 1 then fail("Give one file name") end
local name = arguments[1] or defaultFile
local writer = writers[(name:lower():match("%.([^.]*)$"))]
if not writer then fail("The report %q is neither .md nor .html", name) end

local before = io.open(name)
if before then
    local first = before:read("l")
    before:close()
    if first ~= mark then fail("The file %q exists already and is not a report of this macro", name) end
end

-- The text is whole before the file is opened: an earlier report is not lost to an error on the way.
local recipes, lines = readRecipes(), {}
local function put(line) lines[#lines + 1] = line end
put(mark)
put(writer.begin(writer.escape(addin.ProjectName)))
for _, recipe in ipairs(recipes) do writeRecipe(put, writer, recipe) end
put(writer.finish())

local file, problem = io.open(name, "w")
if not file then fail("The report cannot be written: %s", problem) end
local ok
ok, problem = file:write(table.concat(lines, "\n"), "\n")
if not (ok and file:close()) then fail("The report cannot be written: %s", problem or name) end
print(("%d recipes written to %s"):format(#recipes, name))
