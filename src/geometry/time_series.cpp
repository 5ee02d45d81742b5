#include <calc-common/geometry.hpp>

#include <cmath>

namespace {

// A pair of samples: i indexes the second series, j the first.
struct sample_pair {
    std::size_t i;
    std::size_t j;
};

// Greedy warping path from the first samples to the last: from each pair, step to the
// neighbouring pair whose samples are closest in value. Candidates are offered in the order
// "second alone, first alone, both", and only a strictly cheaper one displaces an earlier one
// (so a not-a-number cost never displaces, nor is displaced). Costs are recomputed rather than
// cached: a cost is one subtraction, cheaper than any lookup, and gives the identical value
// each time, so the path is the same.
std::vector<sample_pair> greedy_path(std::vector<double> const& first,
                                     std::vector<double> const& second) {
    auto cost = [&](sample_pair p) { return std::fabs(second[p.i] - first[p.j]); };
    std::vector<sample_pair> path{{0, 0}};
    for (;;) {
        sample_pair const last = path.back();
        bool const second_can_step = last.i + 1 < second.size();
        bool const first_can_step = last.j + 1 < first.size();
        sample_pair candidates[3];
        std::size_t count = 0;
        if (second_can_step) {
            candidates[count++] = {last.i + 1, last.j};
        }
        if (first_can_step) {
            candidates[count++] = {last.i, last.j + 1};
            if (second_can_step) {
                candidates[count++] = {last.i + 1, last.j + 1};
            }
        }
        if (count == 0) {
            return path;
        }
        sample_pair best = candidates[0];
        double best_cost = cost(best);
        for (std::size_t k = 1; k < count; ++k) {
            double const c = cost(candidates[k]);
            if (c < best_cost) {
                best = candidates[k];
                best_cost = c;
            }
        }
        path.push_back(best);
    }
}

} // namespace

void Calc_AlignTimeSeries(std::vector<double> const& first, std::vector<double> const& second,
                          std::vector<std::vector<std::size_t>>& second_links,
                          std::vector<std::vector<std::size_t>>& first_links) {
    if (first.empty() || second.empty()) {
        return;
    }
    std::vector<sample_pair> const path = greedy_path(first, second);
    first_links.resize(first.size());
    second_links.resize(second.size());
    for (sample_pair const& p : path) {
        first_links[p.j].push_back(p.i);
        second_links[p.i].push_back(p.j);
    }
}
