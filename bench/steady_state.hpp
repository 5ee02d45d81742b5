#ifndef VARNO_BENCH_STEADY_STATE_HPP
#define VARNO_BENCH_STEADY_STATE_HPP

// Counting of the heap allocations a benchmark's timed loop makes, reported as the counter
// "allocs" (per iteration). The program's global operator new is replaced to count: include
// this header in exactly one source file of a benchmark program.

#include <benchmark/benchmark.h>

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace bench_support {

inline std::atomic<std::size_t> allocations{0};

// Counts the allocations made between its construction (after the warm-up call) and the end of
// the timed loop, when it goes out of scope.
class steady_state_allocations {
public:
    explicit steady_state_allocations(benchmark::State& state)
        : state_(state)
        , start_(allocations.load()) {}
    ~steady_state_allocations() {
        state_.counters["allocs"] = benchmark::Counter(
            static_cast<double>(allocations.load() - start_), benchmark::Counter::kAvgIterations);
    }
    steady_state_allocations(steady_state_allocations const&) = delete;
    steady_state_allocations& operator=(steady_state_allocations const&) = delete;

private:
    benchmark::State& state_;
    std::size_t start_;
};

} // namespace bench_support

// Kept out of line, as a replacement in its own file would be, so that the compiler does not
// pair the malloc and free it would see through them.
[[gnu::noinline]] void* operator new(std::size_t size) {
    bench_support::allocations.fetch_add(1, std::memory_order_relaxed);
    if (void* block = std::malloc(size == 0 ? 1 : size)) {
        return block;
    }
    throw std::bad_alloc();
}

[[gnu::noinline]] void operator delete(void* block) noexcept {
    std::free(block);
}

[[gnu::noinline]] void operator delete(void* block, std::size_t) noexcept {
    std::free(block);
}

#endif // VARNO_BENCH_STEADY_STATE_HPP
