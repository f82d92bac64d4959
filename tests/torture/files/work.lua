-- Works in the project that is open, a step after the other; each step changes the project in one go.
--
--   hxrecipe run --project plant.hxs work.lua NAME [STEPS]
--
-- A step that is done is printed, and so is every question and message that the editor has shown.

local name, count = ...

-- A message is the end: what follows would not be what the steps before it lead to.
local function tell()
    local told = false
    for _, message in ipairs(studio.Messages()) do
        local isQuestion = #message.buttons > 1
        print((isQuestion and "question: " or "message: ") .. message.text)
        told = told or not isQuestion
    end
    if told then error("the editor has shown a message", 0) end
end

local function with(dialog, work, action)
    studio.OnDialog(dialog, work)
    action()
    studio.OnDialog(dialog, nil)
end

local function click(tool) editor.abr.Click(tool) end

-- Shows a recipe's node; the branch is read first.
local function show(prefix, recipe)
    local row = project.Query("SELECT ID FROM TrcpRecipe WHERE Name = '" .. recipe .. "'")[1]
    studio.Click("RCPE0")
    studio.Click(prefix .. (row and math.tointeger(row.ID) or 0))
end

-- A list of a dialog may lack what a step that failed should have made.
local function choose(dialog, recipe)
    for i = 0, dialog.cmbChooseRecipe.ListCount - 1 do
        if dialog.cmbChooseRecipe.List(i) == recipe then dialog.cmbChooseRecipe.ListIndex = i end
    end
end

local works = {}

works.recipes = {
    function()
        studio.Click("RCPE0")
        click("mnuRecipeNew")
    end,
    function()
        show("RCPR", "Cola")
        with("FRecipe", function(dialog)
            dialog.txtName.Text = "Cola 2"
            dialog.txtComment.Text = ("kalt "):rep(40)
            dialog.cmdOk.Click()
        end, function() click("mnuRecipeEdit") end)
    end,
    function()
        show("RCPR", "Rinse")
        studio.OnMessage(function(_, _, buttons) return buttons[1] end)
        click("mnuRecipeDelete")
        studio.OnMessage(nil)
    end,
}

works.members = {
    function()
        show("RCPR", "Cola")
        with("FMultiSelectItems", function(dialog)
            dialog.hxMI.SelectedItems = {"Mixer.Level", "Pump", "Stop"}
            dialog.cmdOk.Click()
        end, function() click("mnuRecipeMemberNewVariable") end)
    end,
    function()
        show("RCPR", "Cola")
        editor.tdbRM.Row = 0
        editor.tdbRM.SetText(0, "VarRecipe", "Mixer.Speed")
        studio.Click("RCPE0")  -- who leaves is told of what is lost; VerifyAdds itself says nothing
    end,
    function()
        show("RCPR", "Cola")
        editor.tdbRM.SelectRows({0, 1})
        editor.MenuSwitcher(studio.Selected(), false)
        studio.OnMessage(function(_, _, buttons) return buttons[1] end)
        click("mnuRecipeMemberDelete")
        studio.OnMessage(nil)
    end,
}

works.subrecipes = {
    function()
        show("RCPU", "Rinse")
        with("FSubRecipe", function(dialog)
            choose(dialog, "Cola")
            dialog.txtVarRecipe.Text = "Name.Cola"
            dialog.cmdOk.Click()
        end, function() click("mnuRecipeMemberNewRecipe") end)
    end,
    function()
        show("RCPU", "Rinse")
        editor.tdbRM.Row = 0
        with("FSubRecipe", function(dialog)
            choose(dialog, "Fill")
            dialog.cmdOk.Click()
        end, function() click("mnuRecipeMemberEditSubRecipe") end)
    end,
}

works.variables = {
    function() studio.SetVariables({"Pump", "New.One", "New.Two"}) end,
}

works.settings = {
    function()
        studio.Click("RCPE0")
        editor.tdbRM.Columns("VarRecipe").Width = 2345
        editor.inits.WriteAValueToCInits("torture", "1")
        editor.Close()
    end,
    function()
        studio.CloseProject()
    end,
}

works.registry = {
    function() studio.SetRegistry("SOFTWARE\\Tarnwell\\Torture", "Text", "one") end,
    function() studio.SetRegistry("SOFTWARE\\Tarnwell\\Torture", "Number", 2) end,
}

works.report = {
    function()
        studio.Click("RCPE0")
        click("mnuOptionReport")
    end,
}

-- What was not there before in settings and registry, nothing in the project.
works.next = {
    function()
        studio.Click("RCPE0")
        editor.inits.WriteToIni("next", tostring(os.time()))
        studio.SetRegistry("SOFTWARE\\Tarnwell\\Torture", "Next", tostring(os.time()))
    end,
}

-- Every node, every row, nothing changed; the dialogs are cancelled.
works.look = {
    function()
        for _, dialog in ipairs({"FRecipe", "FSubRecipe", "FMultiSelectItems"}) do
            studio.OnDialog(dialog, function(shown) shown.cmdCancel.Click() end)
        end
        pcall(studio.Expand, "RCPE0")
        pcall(studio.Click, "RCPE0")
        for i, node in ipairs(studio.Nodes()) do
            if i > 60 then break end
            local ok, problem = pcall(function()
                studio.Click(node.key)
                local grid = editor.tdbRM
                for row = 0, math.min(grid.RowCount, 20) - 1 do
                    local _ = grid.Text(row, "VarRecipe") .. grid.Text(row, "ChildID")
                end
                if node.key:match("^RCPR") then
                    click("mnuRecipeEdit")
                    click("mnuRecipeMemberNewVariable")
                elseif node.key:match("^RCPU") then
                    click("mnuRecipeMemberNewRecipe")
                end
                grid.HeadClick("VarRecipe")
            end)
            if not ok then print("message: " .. tostring(problem)) end
        end
        studio.Variables()
    end,
}

local steps = works[name]
for i = 1, math.min(tonumber(count) or #steps, #steps) do
    local ok, problem = pcall(steps[i])
    tell()
    if not ok then error(problem, 0) end
    print("step " .. i)
end
tell()
