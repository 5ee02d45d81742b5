#ifndef VARNO_TESTS_SUPPORT_ALLOCATION_COUNTER_HPP
#define VARNO_TESTS_SUPPORT_ALLOCATION_COUNTER_HPP

#include <cstddef>

namespace test_support {

// Counts calls of the global operator new made by this thread while an instance is alive.
// Test programs that link the support library get a replaced operator new that feeds it, so a
// test can show that a routine allocates nothing in its steady state.
class AllocationCounter {
public:
    AllocationCounter();
    ~AllocationCounter();
    AllocationCounter(AllocationCounter const&) = delete;
    AllocationCounter& operator=(AllocationCounter const&) = delete;

    std::size_t count() const;

private:
    std::size_t start_;
};

} // namespace test_support

#endif
