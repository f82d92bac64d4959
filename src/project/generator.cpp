// SPDX-License-Identifier: MIT
#include "project/generator.h"

#include <algorithm>
#include <string>
#include <vector>

#include "automation/text.h"
#include "project/generated_names.h"
#include "project/schema.h"

namespace hx::project {

using automation::Variant;
using Values = std::span<Variant>;

namespace {

constexpr std::int64_t usualVariables = 10'000;  // a plant has no more; recipes use them again and again
constexpr std::int64_t blockSize = 32;

/// Rows that a function fills, one after the other, until it gives false.
class Rows : public ado::RowSource {
  public:
    explicit Rows(std::function<bool(Values)> fill) : fill_(std::move(fill)) {}
    bool next(Values values) override { return fill_(values); }

  private:
    std::function<bool(Values)> fill_;
};

/// Whose member comes next: the big recipe's, or one of those that are spread over the others.
class MemberOrder {
  public:
    explicit MemberOrder(const GeneratorPlan& plan) : plan_(plan) {}

    struct Next {
        bool big;
        std::int64_t number;  // among those of its kind
    };
    /// Once for each member of the plan.
    Next next() {
        if (left_ == 0) beginBlock();
        --left_;
        return {inBig_, inBig_ ? big_++ : spread_++};
    }

  private:
    void beginBlock() {
        // Whichever is behind its share comes next.
        const bool bigIsNext = static_cast<double>(big_) * static_cast<double>(plan_.members) <=
                               static_cast<double>(spread_) * static_cast<double>(plan_.bigMembers);
        inBig_ = big_ < plan_.bigMembers && (bigIsNext || spread_ >= plan_.members);
        left_ = std::min(blockSize, inBig_ ? plan_.bigMembers - big_ : plan_.members - spread_);
    }

    const GeneratorPlan& plan_;
    std::int64_t big_ = 0, spread_ = 0, left_ = 0;
    bool inBig_ = false;
};

class Generator {
  public:
    Generator(ado::Session& session, const GeneratorPlan& plan, const std::function<void(std::int64_t)>& progress)
        : session_(session),
          plan_(plan),
          progress_(progress),
          membersEach_(plan.recipes == 0 ? 0 : (plan.members + plan.recipes - 1) / plan.recipes),
          variables_(std::max({std::min(usualVariables, plan.members), membersEach_, plan.bigMembers})) {}

    void run() {
        session_.beginTransaction();
        addVariables();
        addRecipes();
        addMembers();
        session_.commit();
    }

  private:
    void add(std::string_view table, std::initializer_list<std::string_view> names, std::function<bool(Values)> fill) {
        const auto rowset = session_.open(table, ado::adCmdTable);
        std::vector<std::size_t> columns;
        for (const std::string_view name : names) {
            const auto found = std::ranges::find_if(rowset->columns(), [&](const ado::Column& column) {
                return automation::equalIgnoreCase(column.name, name);
            });
            columns.push_back(static_cast<std::size_t>(found - rowset->columns().begin()));
        }
        Rows rows(std::move(fill));
        rowset->insertAll(columns, rows);
    }

    void addVariables() {
        using namespace schema::variable;
        add(schema::variableTable, {name, type}, [this, i = std::int64_t{0}](Values values) mutable {
            if (i == variables_) return false;
            values[0] = variableName(i);
            values[1] = variableType(i);
            ++i;
            progress_(done_);
            return true;
        });
    }

    void addRecipes() {
        using namespace schema::recipe;
        const std::int64_t bigOnes = plan_.bigMembers > 0 ? 1 : 0;
        add(schema::recipeTable, {name, filePath, fileExtension, enabled},
            [this, bigOnes, i = std::int64_t{0}](Values values) mutable {
                if (i == bigOnes + plan_.recipes) return false;
                values[0] = i < bigOnes ? "Gesamtanlage" : recipeName(i - bigOnes);
                values[1] = "<ProjectDir>\\Rezepte";
                values[2] = "rz";
                values[3] = true;
                if (i++ >= bigOnes) progress_(++done_);
                return true;
            });
    }

    void addMembers() {
        using namespace schema::member;
        MemberOrder order(plan_);
        const auto first = static_cast<std::int32_t>(plan_.bigMembers > 0 ? 2 : 1);
        add(schema::memberTable, {parentId, varRecipe, childId}, [this, &order, first](Values values) {
            if (done_ == plan_.rows()) return false;
            const auto [big, number] = order.next();
            values[0] = big ? 1 : first + static_cast<std::int32_t>(number % plan_.recipes);
            values[1] = variableName(big ? number : spreadVariable(number));
            values[2] = 0;
            progress_(++done_);
            return true;
        });
    }

    // A recipe has each of its variables once.
    [[nodiscard]] std::int64_t spreadVariable(std::int64_t number) const {
        return (number % plan_.recipes * membersEach_ + number / plan_.recipes) % variables_;
    }

    ado::Session& session_;
    const GeneratorPlan& plan_;
    const std::function<void(std::int64_t)>& progress_;
    std::int64_t membersEach_;
    std::int64_t variables_;
    std::int64_t done_ = 0;
};

}  // namespace

void generate(ado::Session& session, const GeneratorPlan& plan, const std::function<void(std::int64_t)>& progress) {
    Generator(session, plan, progress).run();
}

}  // namespace hx::project
