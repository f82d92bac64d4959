// SPDX-License-Identifier: MIT
#include "bench/growth.h"

#include <algorithm>

#include "bench/measurements.h"
#include "bench/report.h"
#include "bench/subjects.h"

namespace hx::bench {

void printGrowth(std::ostream& stream, const std::string& folder, std::int64_t recipes, std::int64_t members) {
    constexpr std::int64_t large = 100'000;
    std::vector<GrowthLine> byRecipes;
    std::vector<GrowthLine> byMembers;
    for (std::int64_t size = 10; size <= members; size *= 10) {
        const Project project = makeProject(folder, std::min(size, recipes), size);
        const int runs = size < large ? manyRuns / 10 : fewRuns;
        const auto cost = [&](const Subject& subject) { return compare({subject}, 1, runs)[0]; };
        // An explorer takes the nodes only once.
        const auto costOnce = [&](const Subject& subject) { return compare({subject}, fewRuns, 1)[0]; };
        if (size <= recipes) {
            byRecipes.push_back({std::to_string(size),
                                 {cost(read_recipes::ours(project)), costOnce(fill_explorer::ours(project)),
                                  cost(find_recipe::ours(project, "ID=" + std::to_string(size))),
                                  cost(select_recipe::ours(project, smallRecipe))}});
        }
        byMembers.push_back(
            {std::to_string(size),
             {cost(select_recipe::ours(project, bigRecipe)), cost(select_recipe::peer(project, bigRecipe)),
              cost(select_recipe::limit(project, bigRecipe)), cost(show_grid::anyPage(project))}});
    }
    print(stream, "Growth with the number of recipes (9 members each): time and memory",
          {"read all", "fill the explorer", "find by number", "select one of them"}, byRecipes);
    print(stream, "Growth with the number of members of one recipe: time and memory",
          {"select it", "peer", "limit", "scroll to any page"}, byMembers);
}

}  // namespace hx::bench
