// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

namespace hx::lua {

struct Machine;

/// Keeps a function in the registry of its machine while the machine lives.
struct FunctionReference {
    FunctionReference(std::weak_ptr<Machine> owner, int place) : machine(std::move(owner)), number(place) {}
    ~FunctionReference();
    FunctionReference(const FunctionReference&) = delete;
    FunctionReference& operator=(const FunctionReference&) = delete;

    std::weak_ptr<Machine> machine;
    int number;
};

}  // namespace hx::lua
