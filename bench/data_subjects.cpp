// SPDX-License-Identifier: MIT

// Our way and the limit's, on the level of the data.
#include <array>
#include <memory>

#include "bench/editor_data.h"
#include "bench/limit_database.h"
#include "bench/require.h"
#include "bench/subjects.h"
#include "recipe/mhxrcp_hirarch_func.h"

namespace hx::bench {

namespace {

constexpr std::size_t pageRows = 100;

// Jumps through the rows in steps that share no factor with usual sizes.
class Jumps {
  public:
    explicit Jumps(std::int64_t rows) : last_(rows > static_cast<std::int64_t>(pageRows) ? rows - pageRows : 0) {}
    std::size_t next() {
        constexpr std::int64_t step = 382'859;
        at_ = last_ > 0 ? (at_ + step) % last_ : 0;
        return static_cast<std::size_t>(at_);
    }

  private:
    std::int64_t last_;
    std::int64_t at_ = 0;
};

void readRows(ado::Recordset& recordset, std::size_t first, std::size_t count) {
    const std::size_t columns = recordset.fieldCount();
    for (std::size_t row = first; row < first + count; ++row) {
        for (std::size_t column = 0; column < columns; ++column) {
            require(!recordset.valueAt(row, column).isNull(), "a row is missing");
        }
    }
}

}  // namespace

Subject select_recipe::ours(const Project& project, std::int32_t recipe) {
    return [=]() -> Work {
        const auto editor = std::make_shared<EditorData>(project);
        const std::int64_t expected = recipe == bigRecipe ? project.big : 9;
        return [=] {
            editor->select(recipe);
            ado::Recordset& members = editor->memberRecordset();
            const std::int32_t count = members.recordCount();
            require(count == expected, "wrong number of members");
            for (const std::int32_t row : {0, count / 2, count - 1})
                readRows(members, static_cast<std::size_t>(row), 1);
        };
    };
}

Subject select_recipe::limit(const Project& project, std::int32_t recipe) {
    return [=]() -> Work {
        const auto database = std::make_shared<LimitDatabase>(project);
        return [=] {
            database->readAll("SELECT ID FROM TrcpRecipeMember WHERE ParentID = ?1 AND ChildID = 0 ORDER BY ID",
                              recipe);
        };
    };
}

Subject read_page::ours(const Project& project) {
    return [=]() -> Work {
        const auto editor = std::make_shared<EditorData>(project);
        editor->select(bigRecipe);
        readRows(editor->memberRecordset(), 0, pageRows);
        const auto jumps = std::make_shared<Jumps>(project.big);
        return [=] { readRows(editor->memberRecordset(), jumps->next(), pageRows); };
    };
}

Subject read_page::limit(const Project& project) {
    return [=]() -> Work {
        const auto editor = std::make_shared<EditorData>(project);
        editor->select(bigRecipe);
        const auto database = std::make_shared<LimitDatabase>(project);
        const auto jumps = std::make_shared<Jumps>(project.big);
        return [=] {
            const std::size_t first = jumps->next();
            const ado::Recordset& members = editor->memberRecordset();
            database->readAll("SELECT * FROM TrcpRecipeMember WHERE ID BETWEEN ?1 AND ?2 AND ParentID = ?3",
                              members.bookmarkAt(first).key(), members.bookmarkAt(first + pageRows - 1).key(),
                              bigRecipe);
        };
    };
}

Subject read_recipes::ours(const Project& project) {
    return [=]() -> Work {
        const auto editor = std::make_shared<EditorData>(project);
        return [=] {
            ado::Recordset& recipes = *editor->data().rsRecipes;
            require(recipe::OpenAndMoveFirst(recipes), "no recipes");
            const ado::Field& id = recipes.field("ID");
            const ado::Field& name = recipes.field("Name");
            std::int64_t sum = 0;
            for (; !recipes.eof(); recipes.moveNext()) {
                sum += id.value().asInt32() + static_cast<std::int64_t>(name.value().asString().size());
            }
            require(sum > 0, "no recipes");
            recipes.close();
        };
    };
}

Subject read_recipes::limit(const Project& project) {
    return [=]() -> Work {
        const auto database = std::make_shared<LimitDatabase>(project);
        return [=] { database->readAll("SELECT ID, Name FROM TrcpRecipe ORDER BY ID"); };
    };
}

Subject find_recipe::ours(const Project& project, const std::string& criterion) {
    return [=]() -> Work {
        const auto editor = std::make_shared<EditorData>(project);
        return [=] {
            ado::Recordset& recipes = *editor->data().rsRecipes;
            require(recipe::OpenAndMoveFirst(recipes), "no recipes");
            recipes.find(criterion);
            require(!recipes.eof(), "the recipe is missing");
            recipes.close();
        };
    };
}

Subject statistic::ours(const Project& project) {
    return [=]() -> Work {
        const auto editor = std::make_shared<EditorData>(project);
        return [=] {
            for (const auto& recordset : {editor->data().rsRecipes, editor->data().rsRecipeMembers}) {
                recordset->open();
                require(recordset->recordCount() > 0, "nothing to count");
                recordset->close();
            }
        };
    };
}

Subject statistic::limit(const Project& project) {
    return [=]() -> Work {
        const auto database = std::make_shared<LimitDatabase>(project);
        return [=] {
            database->readAll("SELECT COUNT(*) FROM TrcpRecipe");
            database->readAll("SELECT COUNT(*) FROM TrcpRecipeMember");
        };
    };
}

}  // namespace hx::bench
