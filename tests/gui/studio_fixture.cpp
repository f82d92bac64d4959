// SPDX-License-Identifier: MIT
#include "gui/studio_fixture.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QTest>
#include <array>

#include "adapters/qt/text.h"
#include "adapters/sqlite/project_file.h"
#include "automation/convert.h"

namespace hx::gui {

using automation::Variant;

namespace {

struct Member {
    std::int32_t parent, child;
    const char* variable;
};

std::shared_ptr<ado::Connection> connect(ado::Provider& provider, const QString& file) {
    auto connection = std::make_shared<ado::Connection>(provider);
    connection->open("Data Source=" + qt::fromQt(file) + ";Mode=Read|Write|Share Deny None;");
    return connection;
}

void fill(const QString& file) {
    sqlite::Provider provider;
    const auto connection = connect(provider, file);
    ado::Recordset recipes, members;
    recipes.open("TrcpRecipe", connection);
    for (const char* name : {"Limonade", "Apfelschorle", "Meyer's Bräu"}) {
        recipes.addNew(std::array{std::pair<std::string, Variant>("Name", name)});
    }
    members.open("TrcpRecipeMember", connection);
    for (const Member& member : {Member{1, 0, "Mischer.Zucker"}, Member{1, 0, "Mischer.Wasser"},
                                 Member{2, 0, "Mischer.Apfelsaft"}, Member{3, 1, "Datei.Limonade"}, Member{3, 2, ""}}) {
        members.addNew(std::array{std::pair<std::string, Variant>("ParentID", member.parent),
                                  std::pair<std::string, Variant>("ChildID", member.child),
                                  std::pair<std::string, Variant>("VarRecipe", member.variable)});
    }
    recipes.close();
    members.close();
    connection->close();
}

}  // namespace

QString builtModules() { return QStringLiteral(HX_MODULE_FOLDER); }

StudioTest::~StudioTest() {
    window_.reset();
    handleEvents();
}

void StudioTest::start(const QString& modules) {
    host_ = std::make_unique<studio::StudioHost>(folder.filePath("config"), QStringList{modules});
    preferences_ = std::make_unique<studio::Preferences>(folder.filePath("config"));
    window_ = std::make_unique<studio::MainWindow>(*host_, *preferences_);
    window_->show();
    ASSERT_TRUE(activate(*window_));
}

void StudioTest::quit() {
    window_->close();
    window_.reset();
    preferences_.reset();
    host_.reset();
}

QString StudioTest::makeProject(const QString& name) {
    const QString file = folder.filePath(name + ".hxs");
    sqlite::createProject(qt::fromQt(file));
    fill(file);
    return file;
}

QString StudioTest::startAtMembers() {
    start();
    QString file = makeProject();
    open(file);
    click("Rezepte");
    click("Rezepte/Limonade");
    return file;
}

void StudioTest::open(const QString& file) {
    ASSERT_TRUE(window_->openProject(file));
    handleEvents();
}

QMdiSubWindow* StudioTest::editorWindow() {
    const auto list = documents().subWindowList();
    return list.isEmpty() ? nullptr : list.constFirst();
}

QModelIndex StudioTest::node(const QString& path) {
    handleEvents();
    QModelIndex at = tree().model()->index(0, 0);
    for (const QString& caption : path.split('/')) {
        QModelIndex found;
        for (int row = 0; row < tree().model()->rowCount(at) && !found.isValid(); ++row) {
            const QModelIndex child = tree().model()->index(row, 0, at);
            if (child.data().toString() == caption) found = child;
        }
        if (!found.isValid()) throw std::runtime_error("no node " + qt::fromQt(path));
        tree().expand(at);
        at = found;
    }
    return at;
}

void StudioTest::click(const QString& path, Qt::MouseButton button) {
    const QModelIndex at = node(path);
    tree().scrollTo(at);
    QTest::mouseClick(tree().viewport(), button, {}, tree().visualRect(at).center());
    handleEvents();
}

void StudioTest::doubleClick(const QString& path) {
    click(path);
    QTest::mouseDClick(tree().viewport(), Qt::LeftButton, {}, tree().visualRect(node(path)).center());
    handleEvents();
}

int StudioTest::column(const QString& caption) {
    for (int i = 0; i < grid().model()->columnCount(); ++i) {
        if (grid().model()->headerData(i, Qt::Horizontal).toString() == caption) return i;
    }
    throw std::runtime_error("no column " + qt::fromQt(caption));
}

std::vector<std::string> StudioTest::texts(const QString& caption) {
    std::vector<std::string> result;
    const int number = column(caption);
    for (int row = 0; row < grid().model()->rowCount(); ++row) {
        result.push_back(qt::fromQt(grid().model()->index(row, number).data().toString()));
    }
    return result;
}

QLineEdit& StudioTest::typeInCell(int row, const QString& caption, const QString& text) {
    grid().setFocus();
    const QRect cell = grid().visualRect(grid().model()->index(row, column(caption)));
    QTest::mouseClick(grid().viewport(), Qt::LeftButton, {}, cell.topLeft() + QPoint(10, 5));
    QTest::keyClick(&grid(), Qt::Key_F2);
    auto& line = find<QLineEdit>(grid(), "cellEditor");
    line.selectAll();
    type(line, text);
    return line;
}

void StudioTest::edit(int row, const QString& caption, const QString& text) {
    QTest::keyClick(&typeInCell(row, caption, text), Qt::Key_Return);
    handleEvents();
    grid().setFocus();
}

std::vector<std::string> StudioTest::stored(const QString& file, int recipe) {
    sqlite::Provider provider;
    const auto connection = connect(provider, file);
    ado::Recordset rows;
    rows.open("SELECT * FROM TrcpRecipeMember WHERE ParentID = " + std::to_string(recipe), connection);
    std::vector<std::string> result;
    for (; !rows.eof(); rows.moveNext()) result.push_back(automation::toText(rows.field("VarRecipe").value()));
    return result;
}

void StudioTest::store(const QString& file, int recipe, const std::string& variable) {
    sqlite::Provider provider;
    ado::Recordset rows;
    rows.open("TrcpRecipeMember", connect(provider, file));
    rows.addNew(std::vector<std::pair<std::string, automation::Variant>>{
        {"ParentID", recipe}, {"VarRecipe", variable}, {"ChildID", 0}});
}

std::string StudioTest::titleOfEditor() {
    return editorWindow() == nullptr ? "no editor" : qt::fromQt(editorWindow()->windowTitle());
}

}  // namespace hx::gui
