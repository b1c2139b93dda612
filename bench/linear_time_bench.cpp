// Whether time grows with a body's length and no faster, for bodies of one kind of line in both layers.
//
// As a benchmark it measures time. With --count it makes each call once and, under callgrind, dumps what the
// call alone executed.

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <valgrind/callgrind.h>

#include <string>
#include <string_view>
#include <vector>

#include "body/hostile_bodies.h"
#include "daksdp.h"

namespace {

constexpr std::size_t sizes[] = {8192, 16384, 32768, 65535};

// Each layer reads a body and releases what it read.
void read_container(std::string &body)
{
    const sdp_payload_buffer buffer = {body.data(), static_cast<uint16_t>(body.size())};
    sdp_container container;
    benchmark::DoNotOptimize(dak_app_oa_parse_sdp(&container, &buffer));
    dak_app_oa_cleanup_sdp_container(&container);
}

void read_document(std::string &body)
{
    sdp_lib_context *context = init_sdp_lib();
    benchmark::DoNotOptimize(sdp_parse(context, body.data(), static_cast<uint32_t>(body.size())));
    clean_sdp_lib(context);
}

struct layer {
    const char *name;
    void (*read)(std::string &body);
};
constexpr layer layers[] = {{"upper", read_container}, {"lower", read_document}};

// Calls `use` with a name, a body and a reader.
template <class Use> void for_each_case(Use use)
{
    for (const hostile_body &kind : hostile_bodies)
        for (const layer &each : layers)
            for (const std::size_t size : sizes)
                use(std::string(kind.name) + '/' + each.name + '/' + std::to_string(size), kind.text(size),
                    each.read);
}

void count_instructions()
{
    for_each_case([](const std::string &name, std::string body, void (*read)(std::string &)) {
        CALLGRIND_TOGGLE_COLLECT;
        read(body);
        CALLGRIND_TOGGLE_COLLECT;
        CALLGRIND_DUMP_STATS_AT(name.c_str());
    });
}

void measure_time(int argc, char **argv)
{
    // Memory stays with the program: what the system takes to hand out pages is not what is asked for here.
    mallopt(M_MMAP_THRESHOLD, 1 << 25);
    mallopt(M_TRIM_THRESHOLD, 1 << 26);
    for_each_case([](const std::string &name, std::string body, void (*read)(std::string &)) {
        benchmark::RegisterBenchmark(name.c_str(), [body, read](benchmark::State &state) mutable {
            for (auto _ : state)
                read(body);
        });
    });
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}

} // namespace

int main(int argc, char **argv)
{
    if (argc == 2 && std::string_view(argv[1]) == "--count")
        count_instructions();
    else
        measure_time(argc, argv);
    return 0;
}
