// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <cstdlib>
#include <iostream>
#include <string_view>
#include <thread>

#include "torture/campaign.h"

/// torture [--minutes N] [--seed N] [--only TEXT] [CAMPAIGN...]: tries the programs until something breaks, and prints
/// how often it was tried and how often it failed. Without minutes it makes the same few attempts of each kind each
/// time; with --only those alone whose line begins with the text, or holds it.
namespace hx::torture {
namespace {

struct Campaign {
    std::string_view name;
    void (*run)(const Extent& extent, Figures& figures);
    double share;  ///< of the time
};

constexpr auto campaigns = std::to_array<Campaign>({
    {"faults", tryFaults, 0.45},
    {"kills", tryKills, 0.15},
    {"memory", tryMemory, 0.1},
    {"damage", tryDamage, 0.2},
    {"pairs", tryPairs, 0.1},
});

struct Arguments {
    double minutes = 0;
    Extent extent;
    std::vector<std::string_view> campaigns;
    bool wrong = false;
};

Arguments parse(int argc, char** argv) {
    Arguments arguments;
    for (int i = 1; i < argc; ++i) {
        const std::string_view word = argv[i];
        if (word == "--minutes" && i + 1 < argc) arguments.minutes = std::atof(argv[++i]);
        else if (word == "--seed" && i + 1 < argc)
            arguments.extent.seed = static_cast<std::uint32_t>(std::atoll(argv[++i]));
        else if (word == "--only" && i + 1 < argc) arguments.extent.only = argv[++i];
        else if (std::ranges::find(campaigns, word, &Campaign::name) != campaigns.end())
            arguments.campaigns.push_back(word);
        else arguments.wrong = true;
    }
    if (arguments.campaigns.empty()) {
        for (const Campaign& campaign : campaigns) arguments.campaigns.push_back(campaign.name);
    }
    return arguments;
}

void run(const Campaign& campaign, const Arguments& arguments, double share, Figures& figures) {
    Extent extent = arguments.extent;
    if (arguments.minutes > 0) {
        extent.isShort = false;
        extent.jobs = std::max(1U, std::thread::hardware_concurrency());
        const std::chrono::duration<double> time(arguments.minutes * 60 * share);
        extent.until = std::chrono::steady_clock::now() + std::chrono::duration_cast<std::chrono::seconds>(time);
    }
    std::cout << "== " << campaign.name << ", seed " << extent.seed << std::endl;
    campaign.run(extent, figures);
}

int runAll(const Arguments& arguments) {
    Figures figures(std::cout);
    double shares = 0;
    const auto isChosen = [&](const Campaign& campaign) {
        return std::ranges::count(arguments.campaigns, campaign.name) > 0;
    };
    for (const Campaign& campaign : campaigns) shares += isChosen(campaign) ? campaign.share : 0;
    for (const Campaign& campaign : campaigns) {
        if (isChosen(campaign)) run(campaign, arguments, campaign.share / shares, figures);
    }
    figures.print();
    return figures.failed() ? EXIT_FAILURE : EXIT_SUCCESS;
}

}  // namespace
}  // namespace hx::torture

int main(int argc, char** argv) {
    const hx::torture::Arguments arguments = hx::torture::parse(argc, argv);
    if (arguments.wrong) {
        std::cerr << "torture [--minutes N] [--seed N] [--only TEXT] [faults|kills|memory|damage|pairs...]\n";
        return 2;
    }
    try {
        return hx::torture::runAll(arguments);
    } catch (const std::exception& error) {
        std::cerr << "torture: " << error.what() << "\n";
        return 1;
    }
}
