// Time and instructions of the library's calls and, side by side, of those of other libraries.
//
// usage: speed_bench [--count] --zero=SIZE,... [MODULE...] [option of Google Benchmark...]
//
// It goes through the calls once, those of one operation and body behind each other, each library's in turn.
// As a benchmark it measures time. With --count it makes each call once and, under callgrind, dumps what the
// call alone executed. --zero gives the sizes of the blocks that the body of many media lines leaves in its
// container; modules are other libraries.

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <valgrind/callgrind.h>

#include <cstring>
#include <iostream>
#include <sstream>
#include <string_view>

#include "peer_operations.hpp"
#include "port/port.h"

namespace {

constexpr const char *own_name = "daksdp";

struct arguments {
    bool count = false;
    std::vector<std::size_t> zeroed;
    std::vector<const peer *> peers;
};

std::vector<std::size_t> numbers(const std::string &list)
{
    std::vector<std::size_t> sizes;
    std::istringstream stream(list);
    for (std::string size; std::getline(stream, size, ',');)
        sizes.push_back(std::stoul(size));
    return sizes;
}

arguments read_arguments(int argc, char **argv)
{
    arguments read;
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument == "--count")
            read.count = true;
        else if (argument.starts_with("--zero="))
            read.zeroed = numbers(argv[i] + std::strlen("--zero="));
        else if (argument.ends_with(".so"))
            read.peers.push_back(&load_peer(argv[i]));
    }
    return read;
}

// Takes, zeroes and gives back blocks such as those of a container: no parse that fills them can take less.
uint32_t zero_blocks(const std::vector<std::size_t> &sizes, std::vector<void *> &blocks)
{
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        blocks[i] = dak_malloc(sizes[i]);
        std::memset(blocks[i], 0, sizes[i]);
        benchmark::DoNotOptimize(blocks[i]);
    }
    benchmark::ClobberMemory();
    for (void *block : blocks)
        dak_free(block);
    return 0;
}

// Looks at every line of a text once; gives their number.
uint32_t scan_lines(const std::string &text)
{
    uint32_t lines = 0;
    const char *end = text.data() + text.size();
    for (const char *at = text.data(); at != end; ++lines) {
        const void *found = std::memchr(at, '\n', static_cast<std::size_t>(end - at));
        at = found != nullptr ? static_cast<const char *>(found) + 1 : end;
    }
    return lines;
}

// The calls in the order in which they are made, under names such as "OPERATION/BODY/LIBRARY".
class cases {
public:
    explicit cases(const arguments &given)
    {
        for (const body &body : measured_bodies()) {
            for (const operation &operation : operations) {
                add(operation.name, body, own_name, operation.prepare(body));
                add_peers(operation.name, body, given.peers);
            }
            add("parse both", body, own_name, parse_both(body));
            if (body.name == "many_media")
                add_floor(body, given.zeroed);
        }
    }

    template <class Use> void for_each(Use use) const
    {
        for (const auto &[name, each] : calls_)
            use(name, each);
    }

private:
    void add(const std::string &operation, const body &body, const char *library, const call &each)
    {
        if (each)
            calls_.emplace_back(operation + '/' + body.name + '/' + library, each);
    }

    // An operation of a library may have variants, whose names go on behind its own.
    void add_peers(std::string_view operation, const body &body, const std::vector<const peer *> &peers)
    {
        for (const peer_operation &other : peer_operations)
            if (other.name.starts_with(operation))
                for (const peer *library : peers)
                    add(std::string(other.name), body, library->name, other.prepare(*library, body));
    }

    // What a parse into records of fixed size has to spend: on the records, and on looking at the text.
    void add_floor(const body &body, const std::vector<std::size_t> &sizes)
    {
        add("zero", body, own_name, [sizes, blocks = std::vector<void *>(sizes.size())]() mutable {
            return zero_blocks(sizes, blocks);
        });
        add("scan", body, own_name, [text = body.text] { return scan_lines(text); });
    }

    std::vector<std::pair<std::string, call>> calls_;
};

void count_instructions(const arguments &given)
{
    cases(given).for_each([](const std::string &name, const call &each) {
        each(); // the first call of a kind pays for what the C library sets up
        CALLGRIND_TOGGLE_COLLECT;
        each();
        CALLGRIND_TOGGLE_COLLECT;
        CALLGRIND_DUMP_STATS_AT(name.c_str());
    });
}

void repeat(benchmark::State &state, const call &each)
{
    for (auto _ : state)
        each();
}

void measure_time(int argc, char **argv, const arguments &given)
{
    cases(given).for_each([](const std::string &name, const call &each) {
        benchmark::RegisterBenchmark(name.c_str(), [each](benchmark::State &state) { repeat(state, each); });
    });
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}

} // namespace

int main(int argc, char **argv)
{
    // Memory stays with the program, for every library alike: what the system takes to hand out pages is not
    // what is asked for here.
    if (mallopt(M_MMAP_THRESHOLD, 1 << 25) == 0 || mallopt(M_TRIM_THRESHOLD, 1 << 28) == 0)
        std::cerr << "speed_bench: the C library keeps its own thresholds\n";
    const arguments given = read_arguments(argc, argv);
    if (given.count)
        count_instructions(given);
    else
        measure_time(argc, argv, given);
    return 0;
}
