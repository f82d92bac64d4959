// SPDX-License-Identifier: MIT
#include "gui/add_ins.h"

namespace hx::gui {
namespace {

TEST_F(AddInsTest, OneThatIsMissingIsAnErrorWithTheSystemsNumber) {
    const auto [number, text] = errorOf("HXProjectReport.Connect");
    EXPECT_EQ(static_cast<std::uint32_t>(number), 0x80040154u);
    EXPECT_EQ(text, "The class HXProjectReport.Connect is not installed: there is no HXProjectReport" HX_MODULE_SUFFIX
                    " in " +
                        qt::fromQt(folder.path()));
}

}  // namespace
}  // namespace hx::gui
