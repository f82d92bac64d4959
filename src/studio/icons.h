#pragma once

/// The studio's pictures, as SVG.
namespace hx::studio::icons {

extern const char* const studio;
extern const char* const project;
extern const char* const newProject;
extern const char* const openProject;

}  // namespace hx::studio::icons
