-- A recipe's name and comment, in one go, and the window's layout.
studio.Click("RCPE0")
studio.Click("RCPR1")
studio.OnDialog("FRecipe", function(dialog)
    dialog.txtName.Text = "Made in the studio"
    dialog.txtComment.Text = ("kalt "):rep(40)
    dialog.cmdOk.Click()
end)
editor.abr.Click("mnuRecipeEdit")
editor.tdbRM.Columns("VarRecipe").Width = 1999
for _, message in ipairs(studio.Messages()) do error(message.text, 0) end
