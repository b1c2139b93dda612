// The C library's memory with a count of what is asked for. Time is measured without it.
#ifndef DAKSDP_BENCH_COUNTED_MEMORY_HPP
#define DAKSDP_BENCH_COUNTED_MEMORY_HPP

#include <cstddef>
#include <vector>

struct memory_use {
    std::size_t allocations = 0;
    std::size_t live = 0; // bytes, as they were asked for
    std::size_t peak = 0;
};

// Counts from zero.
void start_counting();

memory_use counted();

// Sizes of the blocks that were taken since the start and not given back, in order.
std::vector<std::size_t> live_blocks();

#endif
