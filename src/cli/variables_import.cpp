// SPDX-License-Identifier: MIT
#include "cli/variables_import.h"

#include <optional>

#include "adapters/sqlite/session.h"
#include "automation/error.h"
#include "cli/json_output.h"
#include "cli/progress.h"
#include "lists/variable_writer.h"
#include "lists/variables.h"

namespace hx::cli {

using lists::ListedVariable;
using lists::VariableChange;
using lists::VariableReceiver;
using lists::VariableWriter;
using Kind = VariableChange::Kind;

namespace {

constexpr std::size_t shownNotes = 20;

std::string part(const std::string& title, const std::string& before, const std::string& after) {
    if (before == after) return {};
    return ", " + title + ": " + jsonLine(before) + " -> " + jsonLine(after);
}

std::string lineOf(const ListedVariable& variable, const VariableChange& change) {
    if (change.kind == Kind::added) {
        return "+ variable " + inQuotes(variable.name) + " " + variable.type.value_or("") + "\n";
    }
    return "~ variable " + inQuotes(change.name) + part("Type", change.type, variable.type.value_or(change.type)) +
           part("Comment", change.comment, variable.comment.value_or(change.comment)) + "\n";
}

Json objectOf(const ListedVariable& variable, const VariableChange& change) {
    const Json after = {{"type", variable.type.value_or(change.type)},
                        {"comment", variable.comment.value_or(change.comment)}};
    if (change.kind == Kind::added) return {{"kind", "added"}, {"variable", variable.name}, {"after", after}};
    const Json before = {{"type", change.type}, {"comment", change.comment}};
    return {{"kind", "changed"}, {"variable", change.name}, {"before", before}, {"after", after}};
}

/// Writes each variable, counts, and keeps what is to be told until all went well.
class Importer : public VariableReceiver {
  public:
    Importer(VariableWriter& writer, const VariablesImport& plan, const Output& output)
        : writer_(writer), plan_(plan), output_(output) {}

    void take(const ListedVariable& variable) override {
        const VariableChange change = writer_.take(variable);
        ++counts_[static_cast<std::size_t>(change.kind)];
        const bool told = change.kind == Kind::added || change.kind == Kind::changed;
        if (!plan_.dryRun || !told) return;
        if (plan_.json) changes_ += (changes_.empty() ? "\n" : ",\n") + jsonLine(objectOf(variable, change));
        else changes_ += lineOf(variable, change);
    }
    void note(const automation::Sentence& sentence, std::initializer_list<std::string_view> names) override {
        if (notes_.size() < shownNotes) notes_.push_back(say(automation::Language::english, sentence, names));
        else ++moreNotes_;
    }
    void reach(std::int64_t done, std::int64_t total) override { progress_->reach(done, total); }

    void requireSome() const {
        if (count(Kind::added) + count(Kind::changed) + count(Kind::unchanged) == 0) {
            throw automation::Error(automation::errFail, "There are no variables in " + plan_.list);
        }
    }

    void print() {
        progress_.reset();
        for (const std::string& note : notes_) output_.problems << "hxrecipe: " << plan_.list << ", " << note << "\n";
        if (moreNotes_ > 0) output_.problems << "hxrecipe: " << moreNotes_ << " more of these\n";
        if (plan_.json) printObject();
        else printText();
    }

  private:
    [[nodiscard]] std::size_t count(Kind kind) const { return counts_[static_cast<std::size_t>(kind)]; }

    void printText() const {
        output_.results << changes_ << (plan_.dryRun ? "Would import " : "Imported ") << plan_.list << ": "
                        << count(Kind::added) << " variables added, " << count(Kind::changed) << " changed, "
                        << count(Kind::unchanged) << " unchanged.\n";
    }
    void printObject() const {
        output_.results << "{\"added\": " << count(Kind::added) << ", \"changed\": " << count(Kind::changed)
                        << ", \"unchanged\": " << count(Kind::unchanged);
        if (plan_.dryRun) output_.results << ", \"changes\": [" << changes_ << "\n]";
        output_.results << "}\n";
    }

    VariableWriter& writer_;
    const VariablesImport& plan_;
    const Output& output_;
    std::optional<Progress> progress_{std::in_place, output_};
    std::size_t counts_[4] = {};  // by kind
    std::string changes_;
    std::vector<std::string> notes_;
    std::size_t moreNotes_ = 0;
};

}  // namespace

void importVariables(const VariablesImport& plan, const Output& output) {
    sqlite::Session session(plan.project, plan.dryRun);  // who only reads keeps nobody out
    session.beginTransaction();
    VariableWriter writer(session, plan.project, plan.list,
                          plan.dryRun ? VariableWriter::Mode::practise : VariableWriter::Mode::write);
    Importer importer(writer, plan, output);
    lists::readVariables(plan.list, {plan.encoding, {}}, writer.limits(), importer);
    importer.requireSome();
    session.commit();
    importer.print();
}

}  // namespace hx::cli
