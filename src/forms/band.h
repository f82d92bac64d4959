// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/tool.h"

namespace hx::forms {

class Bar;

/// An ordered set of tools: a menu bar, or a menu. By name or by number from 0.
class Band : public automation::Dispatch {
  public:
    Band(Bar& bar, std::string name) : bar_(bar), name_(std::move(name)) {}
    [[nodiscard]] const std::string& name() const noexcept { return name_; }
    [[nodiscard]] const std::vector<std::shared_ptr<Tool>>& tools() const noexcept { return tools_; }
    /// By name: a tool of this band, else of the bands that its menu tools open. Null when there is none.
    [[nodiscard]] Tool* find(std::string_view name) const;
    [[nodiscard]] Tool& tool(const automation::Variant& nameOrNumber) const;  ///< errBadIndex
    Tool& add(std::string name, ToolKind kind);
    /// Puts a tool in at `position` (0 to the count); errBadIndex.
    void insert(std::size_t position, std::shared_ptr<Tool> tool);
    void remove(std::string_view name);  ///< a tool of this band itself; errBadIndex
    /// Height in twips as the view shows it; 0 while it is not shown.
    [[nodiscard]] double height() const noexcept { return height_; }
    void heightReported(double twips) noexcept { height_ = twips; }

    Event<> toolsChanged;
    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    friend class Bar;
    using Path = std::vector<const Band*>;
    [[nodiscard]] Tool* find(std::string_view name, Path& visited) const;
    [[nodiscard]] Tool* own(std::string_view name) const;
    Bar& bar_;
    std::string name_;
    std::vector<std::shared_ptr<Tool>> tools_;
    double height_ = 0;
};

}  // namespace hx::forms
