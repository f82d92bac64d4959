// SPDX-License-Identifier: MIT
#include "adapters/qt/screen/view_factory.h"

#include "adapters/qt/choosers/multi_items_view.h"
#include "adapters/qt/controls/bar_view.h"
#include "adapters/qt/controls/check_box_view.h"
#include "adapters/qt/controls/combo_box_view.h"
#include "adapters/qt/controls/command_button_view.h"
#include "adapters/qt/controls/frame_view.h"
#include "adapters/qt/controls/label_view.h"
#include "adapters/qt/controls/option_button_view.h"
#include "adapters/qt/controls/picture_box_view.h"
#include "adapters/qt/controls/status_bar_view.h"
#include "adapters/qt/controls/tab_strip_view.h"
#include "adapters/qt/controls/text_box_view.h"
#include "adapters/qt/controls/tool_bar_view.h"
#include "adapters/qt/grid/grid_view.h"
#include "automation/error.h"

namespace hx::qt {

namespace {

template <class Model, class View>
std::unique_ptr<ControlView> makeFor(forms::Control& control, SurroundingForm& form, QWidget& area) {
    auto* model = dynamic_cast<Model*>(&control);
    return model == nullptr ? nullptr : std::make_unique<View>(*model, form, area);
}

using Maker = std::unique_ptr<ControlView> (*)(forms::Control&, SurroundingForm&, QWidget&);

constexpr Maker makers[] = {
    &makeFor<forms::Bar, BarView>,
    &makeFor<forms::ToolBar, ToolBarView>,
    &makeFor<forms::Grid, GridView>,
    &makeFor<forms::StatusBar, StatusBarView>,
    &makeFor<forms::PictureBox, PictureBoxView>,
    &makeFor<forms::Label, LabelView>,
    &makeFor<forms::Frame, FrameView>,
    &makeFor<forms::TextBox, TextBoxView>,
    &makeFor<forms::ComboBox, ComboBoxView>,
    &makeFor<forms::CheckBox, CheckBoxView>,
    &makeFor<forms::OptionButton, OptionButtonView>,
    &makeFor<forms::CommandButton, CommandButtonView>,
    &makeFor<forms::TabStrip, TabStripView>,
    &makeFor<forms::HXMultiItems, MultiItemsView>,
};

}  // namespace

std::unique_ptr<ControlView> makeView(forms::Control& control, SurroundingForm& form, QWidget& area) {
    for (const Maker make : makers) {
        if (auto view = make(control, form, area)) return view;
    }
    throw automation::Error(automation::errFail, "No view shows a control of the class " +
                                                     std::string(control.className()) + " (" + control.name() + ")");
}

}  // namespace hx::qt
