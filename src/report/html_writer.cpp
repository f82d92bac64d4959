// SPDX-License-Identifier: MIT
#include "report/html_writer.h"

#include <string>

#include "report/html_style.h"
#include "report/html_text.h"
#include "resources/text_ids.h"

namespace hx::report {

namespace {

constexpr std::string_view unset = "–";
constexpr std::size_t enough = 1'000'000;  // bytes of one recipe to be kept

/// Makes the parts of one file.
class Writer {
  public:
    Writer(const Report& report, const TextSink& sink) : report_(report), texts_(report.texts()), sink_(sink) {}

    void write() {
        writeHead();
        writeFront();
        writeContents();
        out("<main>\n");
        for (std::size_t i = 0; i < report_.recipes().size(); ++i) {
            writeSection(i);
            ++written_;
            flush();
        }
        out("</main>\n</body>\n</html>\n");
        flush();
    }

  private:
    void out(std::string_view html) { part_ += html; }
    void text(std::string_view plain) { part_ += escapeHtml(plain); }
    void flush() {
        sink_(part_, written_);
        part_.clear();
    }
    void element(std::string_view name, std::string_view plain) {
        out("<" + std::string(name) + ">");
        text(plain);
        out("</" + std::string(name) + ">");
    }
    void span(std::string_view classes, std::string_view plain) {
        out("<span class=\"" + std::string(classes) + "\">");
        text(plain);
        out("</span>");
    }
    /// A remark behind a text: without the style it is a word of its own, too.
    void remark(std::string_view classes, std::string_view plain) {
        out(" ");
        span(classes, plain);
    }
    void number(std::size_t recipe) { out("<span class=\"number\">" + std::to_string(recipe + 1) + "</span> "); }
    void link(std::size_t recipe) {
        out("<a href=\"#" + anchor(recipe) + "\">");
        text(report_.nameOf(recipe));
        out("</a>");
    }
    [[nodiscard]] std::string anchor(std::size_t recipe) const {
        return "r" + std::to_string(report_.recipes()[recipe].id);
    }
    void heading(std::string_view plain, std::size_t count) {
        out("<h3>");
        text(plain);
        if (count > 0) remark("count", "(" + texts_.number(count) + ")");
        out("</h3>\n");
    }
    void none(Text which) {
        out("<p class=\"none\">");
        text(texts_.text(which));
        out("</p>\n");
    }

    void writeHead();
    void writeFront();
    void writeFindings();
    void writeContents();
    void writeSection(std::size_t recipe);
    void writeProperties(const std::vector<Property>& properties);
    void writeSwitches(const Section& section);
    void writeVariables(const project::RecipeData& recipe);
    void writeTree(const project::Tree& tree);
    void writeBranch(const project::Branch& branch);
    void writeUses(const project::Uses& uses, std::size_t self);
    void markSelf(std::size_t user, std::size_t self);

    const Report& report_;
    const Texts& texts_;
    const TextSink& sink_;
    std::string part_;
    std::size_t written_ = 0;  // recipes
};

void Writer::writeHead() {
    out("<!DOCTYPE html>\n<html lang=\"" + std::string(texts_.languageTag()) +
        "\">\n<head>\n<meta charset=\"utf-8\">\n");
    out("<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n");
    element("title", report_.fullTitle());
    out("\n<style>" + std::string(htmlStyle) + "</style>\n</head>\n<body>\n");
}

void Writer::writeFront() {
    out("<header>\n");
    element("h1", texts_.text(Text::title));
    out("\n");
    writeProperties(report_.summary());
    writeFindings();
    out("</header>\n");
}

void Writer::writeFindings() {
    if (report_.findings().empty()) return;
    heading(texts_.text(Text::findings), 0);
    out("<ul class=\"findings\">\n");
    for (const std::string& finding : report_.findings()) {
        element("li", finding);
        out("\n");
    }
    out("</ul>\n");
}

void Writer::writeContents() {
    out("<nav>\n");
    element("h2", texts_.text(Text::contents));
    out("\n<ol class=\"contents\">\n");
    for (std::size_t i = 0; i < report_.recipes().size(); ++i) {
        out("<li>");
        number(i);
        link(i);
        out("</li>\n");
    }
    out("</ol>\n</nav>\n");
    flush();
}

void Writer::writeSection(std::size_t recipe) {
    const Section section = report_.section(recipe);
    out("<section id=\"" + anchor(recipe) + "\">\n<h2>");
    number(recipe);
    text(report_.nameOf(recipe));
    if (!section.recipe->enabled) remark("off", texts_.text(Text::notActive));
    out("</h2>\n");
    for (const PropertyGroup& group : section.groups) {
        heading(group.caption, 0);
        writeProperties(group.properties);
    }
    writeSwitches(section);
    writeVariables(*section.recipe);
    writeTree(section.tree);
    writeUses(section.uses, recipe);
    out("</section>\n");
}

void Writer::writeProperties(const std::vector<Property>& properties) {
    out("<table>\n");
    for (const Property& property : properties) {
        out("<tr><th scope=\"row\">");
        text(property.caption);
        out("</th><td>");
        if (property.value.empty()) span("unset", unset);
        else text(property.value);
        out("</td></tr>\n");
    }
    out("</table>\n");
}

void Writer::writeSwitches(const Section& section) {
    heading(section.switchesCaption, 0);
    out("<ul class=\"switches\">\n");
    for (const Switch& one : section.switches) {
        out(one.on ? "<li class=\"on\">" : "<li class=\"off-switch\">");
        text(one.caption);
        // The box is drawn by the style; what it says is there for those who do not see it.
        remark("visually-hidden", "(" + texts_.text(one.on ? Text::yes : Text::no) + ")");
        out("</li>\n");
    }
    out("</ul>\n");
}

void Writer::writeVariables(const project::RecipeData& recipe) {
    heading(texts_.text(Text::variables), recipe.variables.size());
    if (recipe.variables.empty()) return none(Text::noVariables);
    out("<ul class=\"variables\">\n");
    for (const std::size_t number : recipe.variables) {
        const std::string_view variable = report_.variable(number);
        element("li", variable.empty() ? unset : variable);
        out("\n");
        if (part_.size() > enough) flush();
    }
    out("</ul>\n");
}

void Writer::writeTree(const project::Tree& tree) {
    std::size_t own = 0;
    for (const project::Branch& branch : tree.branches) own += branch.depth == 0 ? 1 : 0;
    heading(texts_.caption(resources::text_id::subRecipes), own);
    if (tree.branches.empty()) return none(Text::noSubRecipes);
    out("<div class=\"tree\">\n");
    std::size_t open = 0;  // lists that are open: one more than the depth of the line before
    for (const project::Branch& branch : tree.branches) {
        const std::size_t wanted = branch.depth + 1;
        if (open < wanted) out("<ul>\n");
        else out("</li>\n");
        for (; open > wanted; --open) out("</ul>\n</li>\n");
        open = wanted;
        out("<li>");
        writeBranch(branch);
    }
    for (; open > 0; --open) out("</li>\n</ul>\n");
    out("</div>\n");
    if (tree.cut) none(Text::subRecipesCut);
}

void Writer::writeBranch(const project::Branch& branch) {
    if (branch.recipe) link(*branch.recipe);
    else span("missing-name", report_.branchName(branch));
    if (branch.mark != project::BranchMark::none) {
        const bool cycle = branch.mark == project::BranchMark::cycle,
                   missing = branch.mark == project::BranchMark::missing;
        remark(cycle ? "mark cycle" : missing ? "mark missing" : "mark", report_.branchNote(branch));
    }
    if (const std::string_view file = report_.branchFile(branch); !file.empty()) remark("file", file);
    out("\n");
}

// A recipe in a cycle is used in itself.
void Writer::markSelf(std::size_t user, std::size_t self) {
    if (user == self) remark("mark cycle", texts_.text(Text::branchCycle));
}

void Writer::writeUses(const project::Uses& uses, std::size_t self) {
    heading(texts_.text(Text::usedIn), uses.list.size());
    if (uses.list.empty()) return none(report_.notUsed());
    out("<ul class=\"uses\">\n");
    for (const project::Use& use : uses.direct()) {
        out("<li>");
        link(use.recipe);
        markSelf(use.recipe, self);
        out("</li>\n");
    }
    for (const project::Use& use : uses.indirect()) {
        out("<li>");
        link(use.recipe);
        markSelf(use.recipe, self);
        remark("via", texts_.text(Text::usedThrough, {report_.nameOf(use.through)}));
        out("</li>\n");
    }
    out("</ul>\n");
    if (uses.cut) none(Text::usesCut);
}

}  // namespace

void writeHtml(const Report& report, const TextSink& sink) { Writer(report, sink).write(); }

}  // namespace hx::report
