// Memory that each call takes: "heap", operation, body, result, allocations, peak in bytes. And the sizes of
// the blocks that a parsed container keeps: "kept", body, sizes with commas.

#include <iostream>

#include "counted_memory.hpp"
#include "operations.hpp"

namespace {

void print_use(const operation &operation, const body &body)
{
    const call prepared = operation.prepare(body);
    start_counting();
    const uint32_t result = prepared();
    const memory_use used = counted();
    std::cout << "heap\t" << operation.name << '\t' << body.name << '\t' << result << '\t' << used.allocations
              << '\t' << used.peak << '\n';
    if (used.live != 0)
        throw std::runtime_error(std::string(operation.name) + " leaks");
}

void print_kept(const body &body)
{
    start_counting();
    const auto container = parsed(body.text);
    std::cout << "kept\t" << body.name << '\t';
    const char *separator = "";
    for (const std::size_t size : live_blocks()) {
        std::cout << separator << size;
        separator = ",";
    }
    std::cout << '\n';
}

} // namespace

int main()
{
    for (const body &body : measured_bodies()) {
        for (const operation &operation : operations)
            print_use(operation, body);
        print_kept(body);
    }
    return 0;
}
