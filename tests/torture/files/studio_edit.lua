-- A new recipe, its name and its variables, and the window's layout.
studio.Click("RCPE0")
editor.abr.Click("mnuRecipeNew")
studio.OnDialog("FRecipe", function(dialog)
    dialog.txtName.Text = "Made in the studio"
    dialog.cmdOk.Click()
end)
editor.tdbRM.Columns("VarRecipe").Width = 1999
for _, message in ipairs(studio.Messages()) do error(message.text, 0) end
