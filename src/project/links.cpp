#include "project/links.h"

namespace hx::project {

Links::Links(std::size_t nodes, const std::vector<Link>& links) : starts_(nodes + 1), numbers_(links.size()) {
    for (const Link& link : links) ++starts_[link.node + 1];
    for (std::size_t node = 1; node < nodes; ++node) starts_[node + 1] += starts_[node];
    std::vector<std::size_t> next(starts_);
    for (const Link& link : links) numbers_[next[link.node]++] = link.number;
}

}  // namespace hx::project
