// SPDX-License-Identifier: MIT

// The report on a project: read, laid out on pages, drawn, written.
#include <array>
#include <filesystem>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <utility>

#include "adapters/sqlite/provider.h"
#include "ado/recordset.h"
#include "bench/application.h"
#include "bench/subjects.h"
#include "cli/generate.h"
#include "report/preview/output.h"
#include "report/preview/page_view.h"

namespace hx::bench {

namespace {

constexpr std::int32_t products = 800, modules = 150, recipes = products + modules + 50;
constexpr std::int64_t members = 20'000, inclusions = 2 * (products + modules);

/// Products that include modules, and modules that include basic recipes: two each.
class Inclusions : public ado::RowSource {
  public:
    bool next(std::span<automation::Variant> values) override {
        if (at_ == inclusions) return false;
        const auto parent = static_cast<std::int32_t>(at_ / 2), turn = static_cast<std::int32_t>(at_ * 7);
        const bool product = parent < products;
        const std::int32_t child = product ? products + turn % modules : products + modules + turn % 50;
        values[0] = parent + 1;
        values[1] = child + 1;
        values[2] = "Linie.Datei" + std::to_string(at_);
        ++at_;
        return true;
    }

  private:
    std::int64_t at_ = 0;
};

void addInclusions(const std::string& path) {
    sqlite::Provider provider;
    const auto connection = std::make_shared<ado::Connection>(provider);
    connection->open("Data Source=" + path + ";Mode=Read|Write;");
    ado::Recordset rows;
    rows.open("TrcpRecipeMember", connection);
    Inclusions source;
    const std::array<std::string, 3> fields = {"ParentID", "ChildID", "VarRecipe"};
    connection->beginTrans();
    rows.addNew(fields, source);
    connection->commitTrans();
}

project::ProjectData read(const std::string& path) {
    sqlite::Provider provider;
    project::Reader reader(provider, path);
    project::ProjectData data = project::readProject(reader);
    if (data.recipes().empty()) throw std::runtime_error("recipes are missing");
    return data;
}

const report::Progress unheard = [](std::int64_t, std::int64_t) {};

/// An application without a display, and in it a report in a view of pages.
class Desk {
  public:
    /// Reads the project and shows the first page.
    void open(const std::string& path) {
        view_.reset();
        pages_.reset();
        project::ProjectData data = read(path);
        recipes_ = data.recipes().size();
        report_ = std::make_unique<report::Report>(std::move(data), report::Texts(), path, report::Moment::now());
        pages_ = std::make_unique<report::Pages>(*report_, report::usualPaper());
        view_ = std::make_unique<report::PageView>(*pages_, nullptr);
        constexpr int size = 850;
        view_->resize(size, size);
    }
    void showPage(int page) {
        view_->showPage(page);
        if (view_->grab().isNull()) throw std::runtime_error("pages are missing");
    }
    void layOut() {
        layOutAll(*pages_, unheard);
        if (std::cmp_less(pages_->count(), recipes_ / 2)) throw std::runtime_error("pages are missing");
    }
    [[nodiscard]] const report::Report& report() const { return *report_; }
    [[nodiscard]] const report::Pages& pages() const { return *pages_; }

  private:
    Application application_;
    std::size_t recipes_ = 0;
    std::unique_ptr<report::Report> report_;
    std::unique_ptr<report::Pages> pages_;
    std::unique_ptr<report::PageView> view_;
};

void requireDone(const QString& problem) {
    if (!problem.isEmpty()) throw std::runtime_error(problem.toStdString());
}

}  // namespace

std::string make_report::plant(const Project& beside) {
    const std::string path = std::filesystem::path(beside.path).replace_filename("report.hxs").string();
    if (std::filesystem::exists(path)) return path;
    const cli::Output output{std::cout, std::cerr, false};
    cli::generate({recipes, members - inclusions, 0}, path, output);
    addInclusions(path);
    return path;
}

Subject make_report::readProject(const std::string& path) {
    return [=]() -> Work { return [=] { (void)read(path); }; };
}

Subject make_report::show(const std::string& path) {
    return [=]() -> Work {
        const auto desk = std::make_shared<Desk>();
        return [=] {
            desk->open(path);
            desk->showPage(0);
        };
    };
}

Subject make_report::layOut(const std::string& path) {
    return [=]() -> Work {
        const auto desk = std::make_shared<Desk>();
        desk->open(path);
        return [=] { desk->layOut(); };
    };
}

Subject make_report::scroll(const std::string& path) {
    return [=]() -> Work {
        const auto desk = std::make_shared<Desk>();
        desk->open(path);
        desk->layOut();
        const auto page = std::make_shared<int>(0);
        return [=] {
            constexpr int step = 377;
            *page = (*page + step) % desk->pages().count();
            desk->showPage(*page);
        };
    };
}

Subject make_report::html(const std::string& path) {
    return [=]() -> Work {
        const auto desk = std::make_shared<Desk>();
        desk->open(path);
        return [=] { requireDone(report::saveHtml(desk->report(), QString::fromStdString(path + ".html"), unheard)); };
    };
}

Subject make_report::pdf(const std::string& path) {
    return [=]() -> Work {
        const auto desk = std::make_shared<Desk>();
        desk->open(path);
        return [=] {
            report::Pages pages(desk->report(), report::usualPaper());
            layOutAll(pages, unheard);
            const QString file = QString::fromStdString(path + ".pdf");
            requireDone(report::savePdf(desk->report(), pages, {0, pages.count() - 1}, file, unheard));
        };
    };
}

}  // namespace hx::bench
