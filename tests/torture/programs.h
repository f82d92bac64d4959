// SPDX-License-Identifier: MIT
#pragma once

/// What is tried, and with what: paths of this build.
namespace hx::torture::programs {

inline constexpr const char* hxrecipe = HX_RECIPE_PROGRAM;
inline constexpr const char* studio = HX_STUDIO_PROGRAM;
inline constexpr const char* faults = HX_FAULTS_LIBRARY;
inline constexpr const char* driver = HX_DRIVER_LIBRARY;
inline constexpr const char* files = HX_TORTURE_FILES;

}  // namespace hx::torture::programs
