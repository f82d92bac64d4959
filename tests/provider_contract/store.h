// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "ado/connection.h"
#include "ado/recordset.h"
#include "support/error_of.h"

namespace hx::contract {

using ado::Recordset;
using automation::Variant;

/// One database with both recipe tables, empty, behind one provider.
class Store {
  public:
    virtual ~Store() = default;
    [[nodiscard]] virtual ado::Provider& provider() = 0;
    [[nodiscard]] virtual std::string path() const = 0;
    /// Whether names are the same by the case of all letters. A Jet index has an order of its own, in which a few
    /// letters that are younger than it have no case.
    [[nodiscard]] virtual bool knowsCaseOfAllLetters() const { return true; }
    /// Whether other programs for Jet databases read it.
    [[nodiscard]] virtual bool isJet() const { return false; }
};

/// A kind of store that the suite runs against.
struct StoreKind {
    std::string name;
    std::function<std::unique_ptr<Store>()> make;

    friend void PrintTo(const StoreKind& kind, std::ostream* stream) { *stream << kind.name; }
};

[[nodiscard]] const std::vector<StoreKind>& storeKinds();

using Values = std::vector<std::pair<std::string, Variant>>;

/// A test over one store with one open connection.
class ProviderContract : public testing::TestWithParam<StoreKind> {
  protected:
    ProviderContract() : store_(GetParam().make()), connection_(connect()) {}
    /// Whatever was written: others read the same.
    void TearDown() override;

    [[nodiscard]] std::shared_ptr<ado::Connection> connect() const;
    [[nodiscard]] std::string connectionString() const;
    [[nodiscard]] std::shared_ptr<Recordset> open(const std::string& source) const;
    [[nodiscard]] std::shared_ptr<Recordset> recipes() const { return open("TrcpRecipe"); }
    [[nodiscard]] std::shared_ptr<Recordset> members() const { return open("TrcpRecipeMember"); }

    /// Stores recipes with these names.
    void addRecipes(const std::vector<std::string>& names) const;
    /// Stores `count` variables "V1", "V2", ... of one recipe, in one transaction.
    void addVariables(std::int32_t recipe, std::int32_t count) const;
    /// What a connection of its own reads of one column, row by row, as text.
    [[nodiscard]] std::string stored(const std::string& source, const std::string& column) const;

    std::unique_ptr<Store> store_;
    std::shared_ptr<ado::Connection> connection_;
};

/// One column of all rows from the first on, joined by commas.
[[nodiscard]] std::string column(Recordset& recordset, const std::string& name);

using support::errorNumber;

/// The description of the error that the action throws.
template <class Action>
std::string descriptionOf(Action&& action) {
    try {
        action();
    } catch (const automation::Error& error) {
        return error.description();
    }
    return "no error";
}

}  // namespace hx::contract
