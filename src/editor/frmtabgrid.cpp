#include "editor/frmtabgrid.h"

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
#include "host/window_offset.h"
#include "recipe/node_key.h"

namespace hx::editor {

using automation::Variant;

namespace {

namespace text {
constexpr std::int32_t openCaption = 310, title = 401, titleSeparator = 402, panels = 420;
}

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
    const std::string_view type = recipe::KeyPrefix(key);
    const bool ours = type == recipe::prefixSubRecipes || type == recipe::prefixRecipe || type == recipe::prefixRoot;
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
    const recipe::WaitCursor wait(screen());
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

}  // namespace hx::editor
