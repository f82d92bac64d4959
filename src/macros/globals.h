// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/lua/engine.h"
#include "macros/studio.h"

/// The globals of a macro beyond Lua itself. Engine, studio and the macro's files are lent and must outlive the macro;
/// the engine ends first.
namespace hx::macros {

/// All of them.
void defineGlobals(lua::Engine& engine, Studio& studio, const lua::MacroFiles& files);

/// studio.NewProject ... studio.KeyUp, `addin`, `editor`: projects, explorer and node events.
void defineProjects(lua::Engine& engine, Studio& studio, const lua::MacroFiles& files);
/// studio.OnMessage ... studio.OnPopup: how the user answers.
void defineAnswers(lua::Engine& engine, Studio& studio);
/// studio.Messages ... studio.Components: what happened since the last call; studio.Found: what the macro has found.
void defineRecords(lua::Engine& engine, Studio& studio);
/// studio.Registry, studio.Variables, studio.RegisterComponent and those that set them, project.Query.
void defineData(lua::Engine& engine, Studio& studio);

}  // namespace hx::macros
