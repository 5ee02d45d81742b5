#ifndef CALC_COMMON_FUZZ_FUZZ_INPUT_HPP
#define CALC_COMMON_FUZZ_FUZZ_INPUT_HPP

// Turns the fuzzer's bytes into the numbers a calculation library hands us. Most numbers are
// drawn from compact encodings (levels in sixteenths of a dB, frequencies in quarters of a Hz)
// so that mutations stay in the ranges where the routines branch; one tag in eight picks a
// special value (not-a-number, infinities, extremes) and one takes eight raw bytes, so that any
// double can reach the library. Reading past the end gives zeros, so every input is usable.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <vector>

namespace fuzzing {

class fuzz_input {
public:
    fuzz_input(std::uint8_t const* data, std::size_t size)
        : data_(data)
        , size_(size) {}

    bool exhausted() const { return position_ >= size_; }

    std::uint8_t byte() { return exhausted() ? 0 : data_[position_++]; }

    /// A count from 0 to `limit` inclusive.
    std::size_t count(std::size_t limit) { return byte() % (limit + 1); }

    bool flag() { return (byte() & 1) != 0; }

    double number() {
        std::uint8_t const tag = byte();
        switch (tag % 8) {
        case 4:
            return unsigned16() / 4.0;
        case 5:
            return unsigned16() / 256.0;
        case 6:
            return special(byte());
        case 7:
            return raw();
        default:
            return static_cast<std::int16_t>(unsigned16()) / 16.0;
        }
    }

    std::vector<double> numbers(std::size_t count) {
        std::vector<double> values(count);
        for (double& value : values)
            value = number();
        return values;
    }

private:
    std::uint16_t unsigned16() {
        std::uint16_t const low = byte();
        return static_cast<std::uint16_t>(low | (byte() << 8));
    }

    double raw() {
        std::uint8_t bytes[sizeof(double)];
        for (std::uint8_t& b : bytes)
            b = byte();
        double value;
        std::memcpy(&value, bytes, sizeof value);
        return value;
    }

    static double special(std::uint8_t which) {
        using limits = std::numeric_limits<double>;
        double const table[] = {0.0,
                                -0.0,
                                1.0,
                                -1.0,
                                limits::quiet_NaN(),
                                limits::infinity(),
                                -limits::infinity(),
                                limits::max(),
                                -limits::max(),
                                limits::min(),
                                limits::denorm_min(),
                                limits::epsilon()};
        return table[which % (sizeof table / sizeof table[0])];
    }

    std::uint8_t const* data_;
    std::size_t size_;
    std::size_t position_ = 0;
};

/// A narrowband grid computes its frequencies from its step only when the step is above zero
/// beyond rounding; any other step makes the grid read its (empty) list, past the end.
inline bool computes_frequencies(double step) {
    return step - std::fabs(step) * std::numeric_limits<double>::epsilon() > 0.0;
}

/// Two results agree when both are not-a-number or both are the same number.
inline bool same_result(double a, double b) {
    return (std::isnan(a) && std::isnan(b)) || a == b;
}

/// Like same_result, but allows the rounding of sums taken in another order.
inline bool close_result(double a, double b) {
    if (same_result(a, b))
        return true;
    if (!std::isfinite(a) || !std::isfinite(b))
        return false;
    return std::fabs(a - b) <= 1e-9 * std::fmax(1.0, std::fmax(std::fabs(a), std::fabs(b)));
}

/// Reports a broken promise of the library and stops, so that the fuzzer keeps the input.
[[noreturn]] inline void mismatch(char const* what, std::size_t index, double got,
                                  double expected) {
    std::fprintf(stderr, "mismatch: %s at %zu: %.17g, expected %.17g\n", what, index, got,
                 expected);
    std::abort();
}

} // namespace fuzzing

#endif // CALC_COMMON_FUZZ_FUZZ_INPUT_HPP
