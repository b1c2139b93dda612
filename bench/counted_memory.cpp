#include "counted_memory.hpp"

#include <algorithm>
#include <cstdlib>
#include <map>

#include "port/port.h"

namespace {

struct block {
    std::size_t number;
    std::size_t size;
};

memory_use use;
std::map<void *, block> blocks;

} // namespace

void start_counting()
{
    use = {};
    blocks.clear();
}

memory_use counted() { return use; }

std::vector<std::size_t> live_blocks()
{
    std::map<std::size_t, std::size_t> in_order;
    for (const auto &[address, each] : blocks)
        in_order[each.number] = each.size;
    std::vector<std::size_t> sizes;
    for (const auto &[number, size] : in_order)
        sizes.push_back(size);
    return sizes;
}

extern "C" {

void *dak_malloc(size_t size)
{
    void *address = std::malloc(size);
    if (address == nullptr)
        return nullptr;
    blocks[address] = {use.allocations++, size};
    use.live += size;
    use.peak = std::max(use.peak, use.live);
    return address;
}

void dak_free(void *address)
{
    // A block from before the start is not counted.
    if (const auto found = blocks.find(address); found != blocks.end()) {
        use.live -= found->second.size;
        blocks.erase(found);
    }
    std::free(address);
}

} // extern "C"
