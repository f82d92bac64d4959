// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <type_traits>

/// Whether change n of the sources is the one that is tried in this run (environment HX_MUTANT). Included before every
/// changed file.
extern "C" bool hxMutant(int n) noexcept;
