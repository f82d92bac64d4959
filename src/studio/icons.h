#pragma once

/// The studio's pictures, as SVG.
namespace hx::studio::icons {

extern const char* const studio;
extern const char* const project;
extern const char* const newProject;
extern const char* const openProject;
extern const char* const help;
extern const char* const runMacro;
extern const char* const stopMacro;
extern const char* const clearOutput;
extern const char* const copyOutput;

}  // namespace hx::studio::icons
