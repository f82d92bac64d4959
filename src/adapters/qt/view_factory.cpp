#include "adapters/qt/view_factory.h"

#include "adapters/qt/bar_view.h"
#include "adapters/qt/check_box_view.h"
#include "adapters/qt/combo_box_view.h"
#include "adapters/qt/command_button_view.h"
#include "adapters/qt/frame_view.h"
#include "adapters/qt/grid_view.h"
#include "adapters/qt/label_view.h"
#include "adapters/qt/multi_items_view.h"
#include "adapters/qt/option_button_view.h"
#include "adapters/qt/picture_box_view.h"
#include "adapters/qt/status_bar_view.h"
#include "adapters/qt/tab_strip_view.h"
#include "adapters/qt/text_box_view.h"
#include "adapters/qt/tool_bar_view.h"
#include "automation/error.h"

namespace hx::qt {

namespace {

template <class Model, class View>
std::unique_ptr<ControlView> makeFor(forms::Control& control, FormView& form, QWidget& area) {
    auto* model = dynamic_cast<Model*>(&control);
    return model == nullptr ? nullptr : std::make_unique<View>(*model, form, area);
}

using Maker = std::unique_ptr<ControlView> (*)(forms::Control&, FormView&, QWidget&);

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

std::unique_ptr<ControlView> makeView(forms::Control& control, FormView& form, QWidget& area) {
    for (const Maker make : makers) {
        if (auto view = make(control, form, area)) return view;
    }
    throw automation::Error(automation::errFail, "No view shows a control of the class " +
                                                     std::string(control.className()) + " (" + control.name() + ")");
}

}  // namespace hx::qt
