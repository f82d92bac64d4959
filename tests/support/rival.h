// SPDX-License-Identifier: MIT
#pragma once

#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "host/system_services.h"
#include "support/processes.h"

namespace hx::support {

/// Another program that records a project of a name elsewhere as soon as somebody has recorded one. It ends with the
/// object.
class Rival {
  public:
    Rival(const std::string& registry, const std::string& name) {
        const std::string text = "[" + std::string(host::registry_keys::projects) + name + "]\nPath=\"/elsewhere\"\n";
        std::filesystem::create_directories(std::filesystem::path(registry).parent_path());
        process_ = processes_.start([registry, text] {
            for (;;) {
                if (contents(registry) == text) continue;
                std::ofstream(registry + ".rival") << text;
                std::filesystem::rename(registry + ".rival", registry);
            }
        });
    }
    ~Rival() { kill(process_, SIGKILL); }
    Rival(const Rival&) = delete;
    Rival& operator=(const Rival&) = delete;

  private:
    static std::string contents(const std::string& path) {
        std::ifstream file(path);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }

    Processes processes_;
    pid_t process_ = 0;
};

}  // namespace hx::support
