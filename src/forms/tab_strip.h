// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "forms/frame.h"

namespace hx::forms {

/// Tabs of a dialog. Controls name their page by setContainer(&page(i)); a page that is not current lies out of sight
/// (its Left is moved by -75000 twips).
class TabStrip : public Control {
  public:
    TabStrip(std::string name, std::size_t tabs);
    ~TabStrip() override;
    [[nodiscard]] std::int16_t tabs() const noexcept { return static_cast<std::int16_t>(pages_.size()); }
    [[nodiscard]] const std::string& tabCaption(std::int16_t tab) const;  ///< errBadIndex
    void setTabCaption(std::int16_t tab, const std::string& caption);
    [[nodiscard]] std::int16_t tab() const noexcept { return current_; }
    void setTab(std::int16_t tab);  ///< raises clickEvent after a change; errBadIndex
    [[nodiscard]] Frame& page(std::int16_t tab) const;
    Event<> clickEvent;
    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    [[nodiscard]] Frame& requirePage(std::int16_t tab) const;
    std::vector<std::shared_ptr<Frame>> pages_;
    std::int16_t current_ = 0;
};

}  // namespace hx::forms
