#include "support/allocation_counter.hpp"

#include <cstdlib>
#include <new>

namespace {

thread_local std::size_t allocations = 0;
thread_local int active_counters = 0;

void* counted_allocation(std::size_t size) {
    if (active_counters > 0) {
        ++allocations;
    }
    if (void* block = std::malloc(size == 0 ? 1 : size)) {
        return block;
    }
    throw std::bad_alloc();
}

} // namespace

void* operator new(std::size_t size) {
    return counted_allocation(size);
}
void* operator new[](std::size_t size) {
    return counted_allocation(size);
}
void operator delete(void* block) noexcept {
    std::free(block);
}
void operator delete[](void* block) noexcept {
    std::free(block);
}
void operator delete(void* block, std::size_t) noexcept {
    std::free(block);
}
void operator delete[](void* block, std::size_t) noexcept {
    std::free(block);
}

namespace test_support {

AllocationCounter::AllocationCounter()
    : start_(allocations) {
    ++active_counters;
}

AllocationCounter::~AllocationCounter() {
    --active_counters;
}

std::size_t AllocationCounter::count() const {
    return allocations - start_;
}

} // namespace test_support
