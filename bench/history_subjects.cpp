// SPDX-License-Identifier: MIT

// Recording what is changed, and undoing it.
#include <filesystem>
#include <memory>

#include "adapters/sqlite/provider.h"
#include "ado/connection.h"
#include "ado/recordset.h"
#include "bench/limit_database.h"
#include "bench/require.h"
#include "bench/subjects.h"
#include "bench/work_copy.h"
#include "history/recording_provider.h"

namespace hx::bench {

namespace {

const std::string ofBig = "FROM TrcpRecipeMember WHERE ParentID = " + std::to_string(bigRecipe);

/// A copy of the project, opened with a history or without.
class Recorded {
  public:
    Recorded(const Project& original, bool records) : copy_(original), records_(records) {}
    ~Recorded() { close(); }
    Recorded(const Recorded&) = delete;
    Recorded& operator=(const Recorded&) = delete;

    void renew() {
        close();
        copy_.renew();
        history_ = std::make_shared<history::History>(store_, copy_.project().path,
                                                      std::filesystem::path(copy_.project().path + ".steps"));
        connection_ = std::make_shared<ado::Connection>(provider_);
        connection_->open("Data Source=" + copy_.project().path + ";Mode=Read|Write|Share Deny None;");
    }
    void removeMembers() const { ado::Recordset().open("DELETE * " + ofBig, connection_); }
    void undo() { history_->undo(); }
    [[nodiscard]] std::int64_t members() const {
        return LimitDatabase(copy_.project()).number("SELECT COUNT(*) " + ofBig);
    }
    void requireMembers(std::int64_t count) const {
        require(members() == count, "the members are not what they should be");
    }

  private:
    void close() {
        connection_.reset();
        if (history_) history_->close();
        history_.reset();
        std::error_code ignored;
        std::filesystem::remove_all(copy_.project().path + ".steps", ignored);
    }
    WorkCopy copy_;
    bool records_;
    sqlite::Provider store_;
    std::shared_ptr<history::History> history_;
    history::RecordingProvider provider_{store_, [this](const std::string&) { return records_ ? history_ : nullptr; }};
    std::shared_ptr<ado::Connection> connection_;
};

Subject removal(const Project& project, bool records) {
    return [=]() -> Work {
        const auto copy = std::make_shared<Recorded>(project, records);
        return {[=] { copy->renew(); }, [=] { copy->removeMembers(); }, [=] { copy->requireMembers(0); }};
    };
}

}  // namespace

Subject record_steps::recorded(const Project& project) { return removal(project, true); }
Subject record_steps::unrecorded(const Project& project) { return removal(project, false); }

Subject record_steps::undo(const Project& project) {
    return [=]() -> Work {
        const auto copy = std::make_shared<Recorded>(project, true);
        const auto prepare = [=] {
            copy->renew();
            copy->removeMembers();
        };
        return {prepare, [=] { copy->undo(); }, [=, many = project.big] { copy->requireMembers(many); }};
    };
}

Subject record_steps::insert(const Project& project) {
    return [=]() -> Work {
        const auto copy = std::make_shared<OnCopy<LimitDatabase>>(project);
        const auto prepare = [=] {
            auto& database = copy->renew();
            database.execute("CREATE TEMP TABLE kept AS SELECT * " + ofBig);
            database.execute("DELETE " + ofBig);
        };
        return {prepare,
                [=] { copy->opened().execute("INSERT INTO TrcpRecipeMember SELECT * FROM kept ORDER BY ID"); }};
    };
}

}  // namespace hx::bench
