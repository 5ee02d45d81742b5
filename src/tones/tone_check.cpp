#include <calc-common/tones.hpp>

#include "tones/tone_location.hpp"
#include "tones/tone_separation.hpp"

using namespace VARNO::detail;

// A locator's first classification is generous. Each pass gives tone bands back to the broadband
// floor, refills the floor, and the next pass judges the remaining tones against the new floor,
// until a pass gives nothing back. Below the cut index a tone is judged against its neighbours in
// the input, from it upward against the filled floor. Every repeated pass removes a tone, so the
// loop ends.

namespace {

constexpr double least_checked_tone_db = 1.0;

template <class Compare, class RefillFloor>
void check_tones(double const* levels, std::size_t n, int k, double check_margin, double* broadband,
                 double* tones, RefillFloor refill_floor) {
    std::size_t given_back = 0;
    do {
        given_back = 0;
        for (std::size_t i = 0; i < n; ++i) {
            if (!Compare::above(tones[i], least_checked_tone_db)) {
                continue;
            }
            bool give_back = false;
            if (static_cast<int>(i) < k) {
                if (i == 0 || i == n - 1) {
                    continue;
                }
                double const neighbour_mean = (levels[i - 1] + levels[i + 1]) * 0.5;
                give_back = Compare::at_most(tones[i], neighbour_mean + check_margin);
                if (!give_back) {
                    tones[i] = levels[i];
                    broadband[i] = 0.0;
                }
            } else {
                give_back = Compare::at_most(tones[i] - broadband[i], check_margin);
                if (!give_back) {
                    broadband[i] = 0.0; // reopen the hole for the next filling
                }
            }
            if (give_back) {
                tones[i] = 0.0;
                broadband[i] = levels[i];
                ++given_back;
            }
        }
        refill_floor();
    } while (given_back > 0);
}

} // namespace

void Calc_CheckTones(boost::shared_ptr<spectrum_t> spectrum, int k, double check_margin,
                     double gap_value, boost::shared_ptr<spectrum_t> broadband,
                     boost::shared_ptr<spectrum_t> tones) {
    std::vector<double> const& levels = spectrum->values;
    check_tones<tolerant_comparison>(levels.data(), levels.size(), k, check_margin,
                                     broadband->values.data(), tones->values.data(),
                                     [&] { Calc_InterpSpec(broadband, gap_value); });
}

void VARNO::detail::Calc_CheckTonesArray(std::vector<double> const& levels, int k,
                                         double const* check_margin, std::vector<double>& broadband,
                                         double* tones) {
    check_tones<plain_comparison>(levels.data(), levels.size(), k, *check_margin, broadband.data(),
                                  tones, [&] { Calc_InterpSpecArray(broadband); });
}
