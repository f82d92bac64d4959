// SPDX-License-Identifier: MIT
#include "report/connect.h"

#include <charconv>
#include <utility>

#include "automation/member_rows.h"
#include "automation/text.h"
#include "forms/wait_cursor.h"

namespace hx::report {

namespace {

// All recipes, or these.
project::ProjectData read(const host::Services& services, const std::string& path,
                          const std::vector<std::int64_t>* recipes) {
    const forms::WaitCursor wait(services.screen);
    project::Reader reader(services.database, path, project::Reader::Damage::read);
    return recipes == nullptr ? project::readProject(reader) : project::readRecipes(reader, *recipes);
}

}  // namespace

Connect::Connect(const host::Services& services, std::unique_ptr<Viewer> viewer)
    : services_(services), viewer_(std::move(viewer)) {}

void Connect::Show(const std::string& subject, const std::string& path, forms::WindowHandle window) {
    show(subject, nullptr, path, window);
}

void Connect::ShowRecipes(const std::string& ids, const std::string& path, forms::WindowHandle window) {
    std::vector<std::int64_t> recipes;
    for (const std::string& id : automation::split(ids, ',')) {
        std::int64_t number = 0;
        (void)std::from_chars(id.data(), id.data() + id.size(), number);
        recipes.push_back(number);
    }
    show(std::string(recipeSubject), &recipes, path, window);
}

void Connect::show(const std::string& subject, const std::vector<std::int64_t>* recipes, const std::string& path,
                   forms::WindowHandle window) {
    const Texts texts = readTexts();
    const auto cannot = [&](const std::string& reason) {
        say(texts, texts.text(Text::cannotMake) + "\r\n\r\n" + reason, forms::message::critical);
    };
    try {
        if (!automation::equalIgnoreCase(subject, recipeSubject)) {
            return say(texts, texts.text(Text::unknownSubject, {subject, recipeSubject}), forms::message::exclamation);
        }
        const auto extent = recipes == nullptr ? Report::Extent::project : Report::Extent::selection;
        const Report report(read(services_, path, recipes), texts, path, Moment::now(), extent);
        if (report.recipes().empty()) {
            return say(texts, texts.text(Text::noRecipes, {report.projectName()}), forms::message::information);
        }
        viewer_->show(report, window);
    } catch (const std::exception&) {
        cannot(automation::caughtError().message(texts.wording()));
    }
}

Texts Connect::readTexts() {
    Texts texts;
    try {
        texts.init(services_.registry);
    } catch (const automation::Error& error) {
        say(texts, error.message(texts.wording()), forms::message::critical);
    }
    return texts;
}

void Connect::say(const Texts& texts, const std::string& text, std::int32_t style) {
    services_.screen.messageBox(text, forms::message::ok | style, texts.text(Text::title));
}

const automation::MemberTable& Connect::members() const {
    using automation::method;
    static constexpr automation::Member rows[] = {
        method<&Connect::Show>("Show", "Shows the report on a subject of a project file over a window"),
        method<&Connect::ShowRecipes>("ShowRecipes",
                                      "Shows the report on some recipes of a project file over a window"),
    };
    static constexpr automation::MemberTable table{"Connect", rows};
    return table;
}

}  // namespace hx::report
