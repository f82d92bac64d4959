#pragma once

#include "adapters/lua/engine.h"
#include "cli/run_macro_studio.h"

/// The globals of a macro. Engine and studio are lent and must outlive the macro; the engine ends first.
namespace hx::cli {

/// studio.NewProject ... studio.KeyUp, `addin`, `editor`: projects, explorer and node events.
void defineProjects(lua::Engine& engine, MacroStudio& studio);
/// studio.OnMessage ... studio.OnPopup: how the user answers.
void defineAnswers(lua::Engine& engine, MacroStudio& studio);
/// studio.Messages ... studio.Components: what happened since the last call.
void defineRecords(lua::Engine& engine, MacroStudio& studio);
/// studio.Registry, studio.Variables, studio.RegisterComponent and those that set them, project.Query.
void defineData(lua::Engine& engine, MacroStudio& studio);

}  // namespace hx::cli
