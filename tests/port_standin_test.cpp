#include "port_standin.h"

#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>

#include <cstdint>
#include <string>
#include <thread>
#include <vector>

#include "platform_test.h"
#include "port/port.h"

// The other tests are worth what this platform is worth: a leak, a failure or a log line that it
// misses would hide the library's own.

namespace {

class Standin : public PlatformTest {};

// Takes `wanted` blocks and returns which of them there were.
std::string blocks_taken(int wanted)
{
    std::string taken;
    std::vector<void *> blocks;
    for (int i = 0; i < wanted; ++i) {
        blocks.push_back(dak_malloc(8));
        taken += blocks.back() != nullptr ? '+' : '-';
    }
    for (void *block : blocks)
        dak_free(block);
    return taken;
}

TEST_F(Standin, fresh_memory_is_filled_and_counted)
{
    auto *block = static_cast<std::uint8_t *>(dak_malloc(3));
    EXPECT_EQ(std::vector<int>(block, block + 3), (std::vector<int>{0xA5, 0xA5, 0xA5}));
    EXPECT_EQ(standin::live_blocks(), 1);
    dak_free(block);
    EXPECT_EQ(standin::live_blocks(), 0);
    EXPECT_EQ(standin::allocations(), 1U);
}

TEST_F(Standin, allocations_fail_on_demand)
{
    const struct {
        const char *label;
        void (*arm)();
        const char *taken;
    } rows[] = {
        {"nothing armed", [] {}, "+++++"},
        {"the third", [] { standin::fail_allocation(3); }, "++-++"},
        {"from the third on", [] { standin::fail_allocations_from(3); }, "++---"},
        {"counted from the arming", [] { blocks_taken(2), standin::fail_allocation(1); }, "-++++"},
        {"armed anew", [] { standin::fail_allocations_from(1), standin::fail_allocation(2); }, "+-+++"},
        {"taken back", [] { standin::fail_allocations_from(1), standin::allow_allocations(); }, "+++++"},
        {"forgotten", [] { standin::fail_allocations_from(1), standin::reset(); }, "+++++"},
    };
    for (const auto &row : rows) {
        standin::reset();
        row.arm();
        EXPECT_EQ(blocks_taken(5), row.taken) << row.label;
    }
}

TEST_F(Standin, logs_and_reports_are_kept_until_reset)
{
    __android_log_print(6, nullptr, "limit %d \n", 200);
    __android_log_print(4, "tag", "%s", std::string(5000, 'x').c_str());
    dak_assert_failed();
    const std::vector<standin::log_line> expected = {
        {"limit %d \n", "limit 200 \n", 6, false},
        {"%s", std::string(5000, 'x'), 4, true},
    };
    EXPECT_EQ(standin::logs(), expected);
    EXPECT_EQ(standin::texts(), (std::vector{expected[0].text, expected[1].text}));
    EXPECT_EQ(standin::assert_count(), 1U);
    standin::reset();
    EXPECT_TRUE(standin::logs().empty());
    EXPECT_EQ(standin::assert_count(), 0U);
}

TEST_F(Standin, tokens_run_out_in_either_way)
{
    for (const auto place : {standin::exhausted_place::at_end, standin::exhausted_place::null}) {
        standin::set_exhausted_place(place);
        char text[] = ",,a,,bc";
        char *save = nullptr;
        EXPECT_STREQ(dak_strtok(text, ",", &save), "a");
        EXPECT_STREQ(dak_strtok(nullptr, ",", &save), "bc");
        EXPECT_EQ(save, place == standin::exhausted_place::null ? nullptr : text + 7);
        EXPECT_EQ(dak_strtok(nullptr, ",", &save), nullptr);
    }
}

TEST_F(Standin, a_sweep_fails_every_allocation_both_ways)
{
    std::vector<std::string> runs;
    EXPECT_EQ(sweep_allocations([&] { runs.push_back(blocks_taken(3)); }), 3U);
    EXPECT_THAT(runs, testing::ElementsAre("-++", "+-+", "++-", "+++", "---", "+--", "++-", "+++"));
}

// Frees the block that the careless body left, which no count knows of any more.
TEST_F(Standin, a_sweep_finds_the_leak_on_a_failure_path)
{
    void *left = nullptr;
    const auto careless = [&left] {
        void *first = dak_malloc(1);
        void *second = dak_malloc(1);
        if (first != nullptr && second == nullptr)
            left = first;
        else
            dak_free(first);
        dak_free(second);
    };
    EXPECT_NONFATAL_FAILURE(detail::sweep_with(careless, standin::fail_allocation, "once"),
                            "memory left behind");
    dak_free(left);
    standin::reset();
}

TEST_F(Standin, a_sweep_over_no_allocation_is_no_proof)
{
    EXPECT_NONFATAL_FAILURE(sweep_allocations([] {}), "allocates nothing");
}

TEST_F(Standin, heap_texts_are_whole)
{
    const std::string_view text("a=\0b", 4);
    EXPECT_EQ(heap_text(text).view(), text);
    EXPECT_EQ(heap_text("").view(), "");
    const heap_c_text terminated(text);
    EXPECT_EQ(std::string_view(terminated.c_str(), terminated.size() + 1), std::string_view("a=\0b\0", 5));
}

class StandinThread : public PlatformTest {};

TEST_F(StandinThread, each_thread_has_a_platform_of_its_own)
{
    standin::fail_allocation(1);
    std::thread([] {
        EXPECT_EQ(blocks_taken(2), "++");
        dak_assert_failed();
        __android_log_print(6, nullptr, "elsewhere");
        EXPECT_EQ(standin::texts(), std::vector<std::string>{"elsewhere"});
        EXPECT_EQ(standin::assert_count(), 1U);
    }).join();
    EXPECT_EQ(standin::allocations(), 0U);
    EXPECT_TRUE(standin::logs().empty());
    EXPECT_EQ(standin::assert_count(), 0U);
    EXPECT_EQ(blocks_taken(2), "-+");
}

} // namespace
