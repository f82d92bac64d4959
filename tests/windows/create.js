// SPDX-License-Identifier: MIT
// Run by cscript, a host that knows nothing of the toolkit: creates the add-ins that are registered, by their program identifiers.
var editor = new ActiveXObject("HXRecipeEditor.Connect");
if (editor.ProjectName !== "") throw new Error("the add-in begins with the project " + editor.ProjectName);
editor.StartupComplete();
editor.Terminate();
new ActiveXObject("HXProjectReport.Connect");
WScript.Echo("created");
