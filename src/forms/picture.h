// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace hx::forms {

/// An image as SVG text: sharp at every scale.
struct Picture {
    std::string svg;
    [[nodiscard]] bool empty() const noexcept { return svg.empty(); }
    friend bool operator==(const Picture&, const Picture&) = default;
};

/// Pictures under keys, in the order in which they were added.
class ImageList {
  public:
    void add(std::string key, Picture picture) { images_.emplace_back(std::move(key), std::move(picture)); }
    [[nodiscard]] const std::vector<std::pair<std::string, Picture>>& images() const noexcept { return images_; }
    /// Null when there is none.
    [[nodiscard]] const Picture* find(const std::string& key) const {
        for (const auto& [name, picture] : images_) {
            if (name == key) return &picture;
        }
        return nullptr;
    }

  private:
    std::vector<std::pair<std::string, Picture>> images_;
};

}  // namespace hx::forms
