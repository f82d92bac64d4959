// SPDX-License-Identifier: MIT

// jet_changes FILE SEED OPERATIONS: changes rows of a Jet database at random and says what is wrong with it then.
#include <cstdlib>
#include <iostream>

#include "adapters/sqlite/jet_storage.h"
#include "jet/random_changes.h"

int main(int count, char** arguments) {
    using namespace hx;
    if (count != 4) return 2;
    try {
        sqlite::LockWait wait(std::chrono::milliseconds(0), {});
        sqlite::JetStorage storage(arguments[1], wait, automation::Language::english);
        jet::Database database(storage, false);
        jet::RandomChanges changes(database, static_cast<std::uint32_t>(std::atoi(arguments[2])));
        const auto figures = changes.run(std::atoi(arguments[3]));
        std::cout << figures.inserted << " inserted, " << figures.updated << " changed, " << figures.removed
                  << " removed, " << figures.refused << " refused, " << figures.takenBack
                  << " transactions taken back\n";
        const auto damages = database.damages(20);
        for (const automation::Error& damage : damages) std::cout << "damaged: " << damage.description() << "\n";
        return damages.empty() ? 0 : 1;
    } catch (const automation::Error& error) {
        std::cerr << error.description() << "\n";
        return 2;
    }
}
