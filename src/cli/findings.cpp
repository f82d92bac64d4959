// SPDX-License-Identifier: MIT
#include "cli/findings.h"

#include "adapters/sqlite/provider.h"
#include "cli/json_output.h"
#include "cli/progress.h"

namespace hx::cli {

using project::Severity;

namespace {

std::string_view nameOf(Severity severity) { return severity == Severity::error ? "error" : "warning"; }

std::string placeOf(const project::Finding& finding) {
    std::string place;
    if (finding.recipe != nullptr) place = "recipe " + inQuotes(finding.recipe->name);
    if (finding.member) place += (place.empty() ? "member " : ", member ") + std::to_string(*finding.member);
    return place.empty() ? "project" : place;
}

std::string counted(std::int64_t count, const std::string& what) {
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

}  // namespace

FindingWriter::FindingWriter(bool json, const Output& output) : json_(json), output_(output) {
    if (json_) output_.results << "{\"findings\": [";
}

void FindingWriter::add(const project::Finding& finding) {
    if (json_) addObject(finding);
    else addLine(finding);
    ++(finding.severity == Severity::error ? errors_ : warnings_);
}

void FindingWriter::addLine(const project::Finding& finding) {
    output_.results << nameOf(finding.severity) << ": " << placeOf(finding) << ": " << visible(finding.problem) << " "
                    << finding.advice << "\n";
}

void FindingWriter::addObject(const project::Finding& finding) {
    Json object = {{"severity", nameOf(finding.severity)}, {"kind", finding.kind}};
    if (finding.recipe != nullptr) object["recipe"] = recipeObject(*finding.recipe);
    if (finding.member) object["member"] = *finding.member;
    object["problem"] = visible(finding.problem);
    object["advice"] = finding.advice;
    output_.results << (isEmpty() ? "\n" : ",\n") << jsonLine(object);
}

void FindingWriter::finish() {
    if (json_) {
        output_.results << "\n], \"errors\": " << errors_ << ", \"warnings\": " << warnings_ << "}\n";
    } else if (isEmpty()) {
        output_.results << "No findings.\n";
    } else {
        output_.results << counted(errors_ + warnings_, "finding") << ": " << counted(errors_, "error") << ", "
                        << counted(warnings_, "warning") << ".\n";
    }
}

int check(const CheckOptions& options, const Output& output) {
    sqlite::Provider provider;
    project::Reader reader(provider, options.path, project::Reader::Damage::read);
    FindingWriter findings(options.json, output);
    using Check = ado::Session::Check;
    project::Check check(reader, [&](const auto& finding) { findings.add(finding); });
    if (!check.findDamage(options.thorough ? Check::thorough : Check::usual)) {
        Progress progress(output);
        reader.tell(progress.hearer());
        check.run();
    }
    findings.finish();
    return findings.isEmpty() ? succeeded : found;
}

}  // namespace hx::cli
