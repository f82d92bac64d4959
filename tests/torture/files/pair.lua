-- What one of two processes does while the other does the same.
--
--   hxrecipe run --trust --config DIR pair.lua registry NAME
--   hxrecipe run --config DIR --project FILE pair.lua recipe NAME

local what, name = ...

if what == "registry" then
    for i = 1, 20 do studio.SetRegistry("SOFTWARE\\Tarnwell\\Torture", name .. i, i) end
else
    studio.Click("RCPE0")
    editor.abr.Click("mnuRecipeNew")
    studio.Click("RCPR1")
    studio.OnDialog("FRecipe", function(dialog)
        dialog.txtName.Text = "Recipe of " .. name
        dialog.cmdOk.Click()
    end)
    editor.abr.Click("mnuRecipeEdit")
    for _, message in ipairs(studio.Messages()) do error(message.text, 0) end
end
