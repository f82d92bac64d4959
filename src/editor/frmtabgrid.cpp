// SPDX-License-Identifier: MIT
#include "editor/frmtabgrid.h"

#include <algorithm>
#include <limits>

#include "automation/convert.h"
#include "automation/member_rows.h"
#include "editor/commands.h"
#include "editor/database_work.h"
#include "editor/function_bar.h"
#include "editor/guard.h"
#include "editor/member_grid_keys.h"
#include "editor/member_grid_mouse.h"
#include "editor/menus.h"
#include "editor/msurfing_grid.h"
#include "editor/recipe_names.h"
#include "editor/split_bar.h"
#include "editor/tools.h"
#include "forms/wait_cursor.h"
#include "host/window_offset.h"
#include "recipe/node_key.h"
#include "resources/text_ids.h"

namespace hx::editor {

namespace text = resources::text_id;

using automation::Error;
using automation::method;
using automation::property;
using automation::Variant;

namespace {

constexpr std::size_t statusPanels = 3;
constexpr double toolBarHeight = 420, statusBarHeight = 330;  // twips

}  // namespace

frmtabgrid::frmtabgrid(AddIn& addIn)
    : Form("frmtabgrid", addIn.services().screen),
      abr(add<forms::Bar>("abr")),
      tbrfunc(add<forms::ToolBar>("tbrfunc")),
      tdbRM(add<forms::Grid>("tdbRM")),
      sb(add<forms::StatusBar>("sb", statusPanels)),
      pctrcpTabSplit(add<forms::PictureBox>("pctrcpTabSplit")),
      addIn_(addIn),
      commands_(std::make_unique<Commands>(*this, addIn_)),
      menus_(std::make_unique<Menus>(*this, addIn_)),
      memberGrid_(std::make_unique<MSurfingGrid>(*this, addIn_)),
      gridKeys_(std::make_unique<MemberGridKeys>(*this, *memberGrid_, *menus_, addIn_)),
      gridMouse_(std::make_unique<MemberGridMouse>(*this, *menus_, addIn_)),
      functionBar_(std::make_unique<FunctionBar>(*this, *menus_, addIn_)),
      splitBar_(std::make_unique<SplitBar>(*this)) {
    tbrfunc->setHeight(toolBarHeight);
    sb->setHeight(statusBarHeight);
    subscriptions_.push_back(loadEvent.subscribe([this] { onLoad(); }));
    subscriptions_.push_back(
        queryUnloadEvent.subscribe([this](bool& cancel, forms::UnloadMode mode) { onQueryUnload(cancel, mode); }));
    for (auto* event : {&keyDownEvent, &abr->keyDownEvent}) {
        subscriptions_.push_back(event->subscribe(
            [this](forms::KeyEvent& key) { guard(addIn_, "frmtabgrid: KeyDown", [&] { onKeyDown(key); }); }));
    }
    subscriptions_.push_back(abr->resizeEvent.subscribe([this] { abr_Resize(); }));
    subscriptions_.push_back(tbrfunc->changed.subscribe([this](std::string_view property) {
        if (property == "Height") abr_Resize();
    }));
}

frmtabgrid::~frmtabgrid() {
    if (inits_) inits_->Motherobject = nullptr;  // somebody may keep the settings
}

void frmtabgrid::setCommands(std::unique_ptr<Commands> commands) { commands_ = std::move(commands); }

void frmtabgrid::setPaths(const std::string& path, const std::string& secondPath) {
    path_ = path;
    secondPath_ = secondPath;
}

void frmtabgrid::onLoad() {
    const resources::ResourceTable& texts = addIn_.texts();
    std::int32_t recipes = 0, members = 0;
    addIn_.counters().UpdateStatusCounters(*sb, texts, {}, recipe::StatusCounters::Mode::reset, recipes, members);
    // There is no such text: its place holder stands in the frame until the first node is shown.
    setCaption(texts.GetResource(text::openCaption) + path_);
    menus_->localise();
    functionBar_->refresh();
    for (std::int32_t panel = 1; panel <= sb->panelCount(); ++panel) {
        sb->panel(panel).setText(texts.GetResource(text::panels + panel));
    }
    loadSettings();
}

void frmtabgrid::onQueryUnload(bool& cancel, forms::UnloadMode mode) {
    if (mode == forms::UnloadMode::byUser) {
        cancel = true;  // the window only hides: the add-in ends it
        guard(addIn_, "frmtabgrid: QueryUnload", [this] {
            tdbRM->settle();
            (void)finishEdit();  // what cannot be stored waits for the window to be shown again
        });
        guard(addIn_, "frmtabgrid: QueryUnload", [this] { showInHost(); });
    }
    guard(addIn_, "frmtabgrid: QueryUnload", [this] { saveSettings(); });
    hide();
}

void frmtabgrid::showInHost() {
    const automation::ObjectRef host = addIn_.services().windows.embeddingObject(handle());
    if (host == nullptr) return;
    if (host->className() == "Window") host->set("Visible", Variant(true));
    else if (host->className() == "MDIEdit") host->get("Show");
}

void frmtabgrid::onKeyDown(forms::KeyEvent& event) {
    if (event.code == forms::key::f1 && event.shift == forms::shift::none) {
        event.swallow();
        addIn_.help().ShowHelp(handle(), resources::help_context::grid);
    } else if (event.code == forms::key::f6 && event.shift == forms::shift::alt) {
        event.swallow();
        host::ProjectExplorer* explorer = addIn_.explorer();
        if (explorer == nullptr) return;
        explorer->activate();
        explorerUsed();
    }
}

void frmtabgrid::SwitchGrids(const std::string& key) {
    const bool ours = recipe::isRecipeKey(key);
    tdbRM->setVisible(ours);
    tdbRM->setTabStop(ours);
    pctrcpTabSplit->setVisible(ours);
}

void frmtabgrid::MakeMyCaption(const std::string& key, const std::string& name) {
    const resources::ResourceTable& texts = addIn_.texts();
    const std::string title = texts.GetResource(text::title);
    // A key without a number is not the root: it shows the name.
    setCaption(recipe::KeyId(key) == 0 ? title : title + texts.GetResource(text::titleSeparator) + name);
    shownName_ = name;
    functionBar_->refresh();
}

void frmtabgrid::finishOrDropEdit() { memberGrid_->finishOrDrop(); }

void frmtabgrid::VerifyAdds() { memberGrid_->verifyAdds(); }

void frmtabgrid::MenuSwitcher(const std::string& key, bool context) {
    menus_->MenuSwitcher(key, context);
    functionBar_->refresh();
}

void frmtabgrid::bindGrid() {
    if (data_ == nullptr) return;
    if (const auto members = data_->recordset(tdbRM->dataMember())) memberGrid_->build(members);
}

void frmtabgrid::refreshSubRecipeNames() { memberGrid_->refreshSubRecipeNames(); }

void frmtabgrid::refreshMembers() { memberGrid_->refreshMembers(); }

void frmtabgrid::refreshMembersAt(const ado::Bookmark& row) { memberGrid_->refreshMembersAt(row); }

bool frmtabgrid::readingMembers() const noexcept { return memberGrid_->reading(); }

void frmtabgrid::explorerUsed() { functionBar_->explorerUsed(); }

bool frmtabgrid::finishEdit() { return memberGrid_->finishEdit(); }

void frmtabgrid::chooseNode(const std::string& key) {
    if (!recipe::isRecipeKey(key)) return MenuSwitcher(key, false);
    finishOrDropEdit();
    showNode(recipe::KeyPrefix(key) == recipe::prefixRoot ? std::string(recipe::prefixRoot) : key);
}

void frmtabgrid::showNode(const std::string& key) {
    if (!finishEdit()) return;
    try {
        readNode(key);
    } catch (...) {
        showNone();
        throw;
    }
    MenuSwitcher(key, false);
}

void frmtabgrid::readNode(const std::string& key) {
    const bool root = recipe::KeyPrefix(key) == recipe::prefixRoot;
    const forms::WaitCursor wait(screen());
    if (tdbRM->columns().empty()) bindGrid();
    SwitchGrids(key);
    tdbRM->setAllowUpdate(!root);
    setNodeKey(key);
    refreshMembers();
    MakeMyCaption(root ? std::string(recipe::rootKey) : key, recipeName(key));
}

// A command would act on a node that is shown by half.
void frmtabgrid::showNone() {
    setNodeKey({});
    memberGrid_->clear();
    SwitchGrids({});
    MakeMyCaption({}, "-");
    MenuSwitcher({}, false);
}

std::string frmtabgrid::recipeName(const std::string& key) const {
    const std::int32_t id = recipe::KeyId(key);
    if (id <= 0 || data_ == nullptr) return {};
    return nameOfRecipe(data_->CnnRecipes, id).value_or(std::string());
}

void frmtabgrid::tell(std::string_view text) {
    const Busy busy(addIn_.busy());
    screen().messageBox(text, forms::message::ok, forms::message::defaultTitle);
}

recipe::DataEnvironment& frmtabgrid::requireData() const {
    if (data_ == nullptr) throwNoDatabase();
    return *data_;
}

ado::Recordset& frmtabgrid::recipeRecordset() { return *requireData().rsRecipes; }
ado::Recordset& frmtabgrid::memberRecordset() { return *requireData().rstabRecipeMembers; }

std::optional<double> frmtabgrid::hostOffset(float (*offset)(const host::WindowOperations&, forms::WindowHandle,
                                                             forms::WindowHandle)) const {
    const host::ProjectExplorer* explorer = addIn_.explorer();
    const host::WindowOperations& windows = addIn_.services().windows;
    if (!loaded() || explorer == nullptr || windows.embeddingObject(handle()) == nullptr) return {};
    // Maximised or minimised it lies elsewhere than where it will lie again, which is what is stored.
    if (windowState() != forms::WindowState::normal) return {};
    return offset(windows, handle(), explorer->hostWindow()) * screen().twipsPerPixel();
}

double frmtabgrid::PosLeft() const { return hostOffset(&host::WindowLeftOffset).value_or(left()); }

void frmtabgrid::setPosLeft(double twips) { setLeft(left() + twips - PosLeft()); }

double frmtabgrid::PosTop() const { return hostOffset(&host::WindowTopOffset).value_or(top()); }

void frmtabgrid::setPosTop(double twips) { setTop(top() + twips - PosTop()); }

void frmtabgrid::abr_ToolClick(forms::Tool& tool) {
    if (!tool.enabled()) return screen().beep();
    commands().runTool(tool.name());
}

void frmtabgrid::abr_Resize() {
    const double toolBar = tbrfunc->height();
    const double menu = abr->band(automation::Variant(band::main)).height();
    const double clientWidth = abr->clientAreaWidth(), clientHeight = abr->clientAreaHeight();
    tbrfunc->move(tbrfunc->left(), menu, clientWidth, toolBar);
    sb->move(sb->left(), menu + clientHeight - sb->height(), clientWidth, sb->height());
    const double hidden = sb->visible() ? 0 : sb->height();
    const double gridHeight = std::max(clientHeight - toolBar + hidden, 0.0);
    if (windowState() == forms::WindowState::minimised) return;
    tdbRM->move(0, menu + toolBar, scaleWidth(), gridHeight);
    splitBar_->place();
}

namespace {

constexpr std::string_view settingsName = "frmtabGridRCP", fileName = "HXEditors.ini", saveOnExit = "SaveOnExit";
constexpr std::string_view windowEntry = "Me";

// Properties are assigned as 16-bit numbers: a wider one could be stored, but never be applied again.
void keepInReach(settings::CInitItem& item) {
    using Limits = std::numeric_limits<std::int16_t>;
    settings::visitLeaves(item.Name, item, [](const std::string&, settings::CInitItem& leaf) {
        if (!leaf.val.isNumber()) return;
        leaf.val = std::clamp<double>(automation::toDouble(leaf.val), Limits::min(), Limits::max());
    });
}

}  // namespace

settings::CInit& frmtabgrid::inits() {
    if (inits_ == nullptr) {
        const host::Services& services = addIn_.services();
        inits_ = std::make_shared<settings::CInit>(services.iniFile, services.numberFormat);
        inits_->Motherobject = this;
    }
    return *inits_;
}

std::string frmtabgrid::settingsFile() const {
    return std::string(host::PathStyle::folderOf(path_)) + std::string(fileName);
}

void frmtabgrid::loadSettings() {
    inits().LoadDefaultInit(std::string(settingsName));
    inits().LoadInits(settingsFile());
    applySettings(sb->name());
    applySettings(std::string(windowEntry));
}

void frmtabgrid::applySettings(const std::string& name) {
    settings::CInitItem* const item = inits().root().Item(std::string_view(name));
    if (item == nullptr) return;
    std::string refused;
    std::int32_t number = 0;
    settings::visitLeaves(name, *item, [&](const std::string& entry, const settings::CInitItem& leaf) {
        try {
            inits().SetInitToControl(entry);
        } catch (const Error& error) {
            number = error.number();
            refused += "\r\n" + entry + "=" + automation::toText(leaf.val) + " (" +
                       error.description(screen().language()) + ")";
        }
    });
    if (refused.empty()) return;
    guard(addIn_, "frmtabgrid: Load", [&] { throw Error(number, settingsFile() + refused); });
}

void frmtabgrid::saveSettings() {
    if (inits().ReadAValueFromCInits(std::string(saveOnExit), Variant(true)) != Variant(true)) {
        return inits().WriteToIni(std::string(saveOnExit), "False");
    }
    const auto capture = [this](const std::string& name) {
        inits().GetInitFromControl(name);
        keepInReach(*inits().root().Item(std::string_view(name)));
    };
    if (memberGrid_->arranged()) {
        capture(tdbRM->name());
        memberGrid_->saveColumnOrder();
    }
    capture(std::string(windowEntry));
    inits().SaveInits(settingsFile());
}

namespace {

automation::ObjectRef initsOf(frmtabgrid& window) { return window.inits().share(); }
void clickTool(frmtabgrid& window, const std::string& tool) { window.abr->click(tool); }
void runRecipeCommand(frmtabgrid& window, std::int16_t index) { window.commands().mnuRecipeFunc(index); }
void runMemberCommand(frmtabgrid& window, std::int16_t index) { window.commands().mnuRecipeMember(index); }
void runOptionCommand(frmtabgrid& window, std::int16_t index) { window.commands().mnuOption(index); }

}  // namespace

const automation::MemberTable& frmtabgrid::members() const {
    static constexpr automation::Member rows[] = {
        property<&frmtabgrid::PosLeft, &frmtabgrid::setPosLeft>("PosLeft", "Left edge in the studio's window, twips"),
        property<&frmtabgrid::PosTop, &frmtabgrid::setPosTop>("PosTop", "Top edge in the studio's window, twips"),
        property<&frmtabgrid::path>("Path", "The project file"),
        property<&frmtabgrid::secondPath>("SecondPath", "The path that sibling add-ins get"),
        property<&frmtabgrid::nodeKey, &frmtabgrid::setNodeKey>("NodeKey", "The key of the shown explorer node"),
        property<&frmtabgrid::settingsFile>("SettingsFile", "Where layout and options are stored"),
        property<&frmtabgrid::subRecipeView>("SubRecipeView", "Whether the grid shows sub-recipes"),
        property<&initsOf>("inits", "Layout and options by their paths"),
        method<&frmtabgrid::SwitchGrids>("SwitchGrids", "Shows or hides the grid for a node"),
        method<&frmtabgrid::MakeMyCaption>("MakeMyCaption", "Sets the caption for a node and its recipe's name"),
        method<&frmtabgrid::VerifyAdds>("VerifyAdds", "Writes or drops a pending edit of the grid"),
        method<&frmtabgrid::MenuSwitcher>("MenuSwitcher", "Enables and shows the tools for a node: key, context menu"),
        method<&frmtabgrid::abr_Resize>("abr_Resize", "Lays out tool bar, status line and grid"),
        method<&clickTool>("abr_ToolClick", "Runs a tool by name; a disabled one beeps"),
        method<&frmtabgrid::bindGrid>("BindGrid", "Builds the grid's columns and applies the stored layout"),
        method<&frmtabgrid::refreshMembers>("RefreshMembers", "Reads the members of the node again"),
        method<&frmtabgrid::refreshSubRecipeNames>("RefreshSubRecipeNames", "Reads the names of sub-recipes again"),
        method<&frmtabgrid::recipeName>("RecipeName", "The name of a node's recipe"),
        method<&runRecipeCommand>("mnuRecipeFunc", "Runs a recipe command by its number"),
        method<&runMemberCommand>("mnuRecipeMember", "Runs a member command by its number"),
        method<&runOptionCommand>("mnuOption", "Runs an option command by its number"),
    };
    static const automation::MemberTable table{"frmtabgrid", rows, &formMembers()};
    return table;
}

}  // namespace hx::editor
