#include "port/host/host_port.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "port/port.h"

namespace {

using testing::ElementsAre;
using testing::Pair;

class HostPort : public testing::Test {
protected:
    void TearDown() override
    {
        dak_host_set_log_sink(nullptr, nullptr);
        dak_host_set_assert_hook(nullptr, nullptr);
    }
};

using lines = std::vector<std::pair<int, std::string>>;

void keep_line(int priority, const char *text, void *user)
{
    static_cast<lines *>(user)->emplace_back(priority, text);
}

TEST_F(HostPort, a_sink_receives_each_line_as_worded)
{
    lines kept;
    dak_host_set_log_sink(keep_line, &kept);
    __android_log_print(DAK_LOG_ERROR, nullptr, "Src str length exceeded dst str %d \n", 200);
    __android_log_print(4, "tag", "no newline");
    EXPECT_THAT(kept, ElementsAre(Pair(6, "Src str length exceeded dst str 200 \n"), Pair(4, "no newline")));
}

TEST_F(HostPort, lines_of_any_length_arrive_whole)
{
    for (const std::size_t length : {0U, 1U, 510U, 511U, 512U, 513U, 10000U}) {
        lines kept;
        dak_host_set_log_sink(keep_line, &kept);
        const std::string text(length, 'x');
        EXPECT_EQ(__android_log_print(DAK_LOG_ERROR, nullptr, "%s", text.c_str()), static_cast<int>(length));
        EXPECT_THAT(kept, ElementsAre(Pair(6, text)));
    }
}

TEST_F(HostPort, without_a_sink_lines_go_to_stderr_and_end_there)
{
    lines kept;
    dak_host_set_log_sink(keep_line, &kept);
    dak_host_set_log_sink(nullptr, nullptr);
    testing::internal::CaptureStderr();
    __android_log_print(DAK_LOG_ERROR, nullptr, "first\n");
    __android_log_print(DAK_LOG_ERROR, nullptr, "second");
    __android_log_print(DAK_LOG_ERROR, nullptr, "%s", "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "first\nsecond\n\n");
    EXPECT_TRUE(kept.empty());
}

TEST_F(HostPort, failure_reports_reach_the_hook_while_it_is_set)
{
    int reports = 0;
    dak_assert_failed();
    dak_host_set_assert_hook([](void *user) { ++*static_cast<int *>(user); }, &reports);
    dak_assert_failed();
    dak_assert_failed();
    dak_host_set_assert_hook(nullptr, nullptr);
    dak_assert_failed();
    EXPECT_EQ(reports, 2);
}

TEST_F(HostPort, tokens_stand_between_runs_of_delimiters)
{
    const std::pair<std::string, std::vector<std::string>> rows[] = {
        {"", {}}, {" \r\n", {}}, {"IN", {"IN"}}, {" IN  IP6 ::1\r\n", {"IN", "IP6", "::1"}}};
    for (const auto &[text, tokens] : rows) {
        std::string rest = text;
        std::vector<std::string> found;
        char *save = nullptr;
        for (char *at = dak_strtok(rest.data(), " \r\n", &save); at; at = dak_strtok(nullptr, " \r\n", &save))
            found.emplace_back(at);
        EXPECT_EQ(found, tokens) << text;
        EXPECT_EQ(dak_strtok(nullptr, " \r\n", &save), nullptr) << "a text that ran out stays so";
        save = nullptr;
        EXPECT_EQ(dak_strtok(nullptr, " \r\n", &save), nullptr) << "no place, no token";
    }
}

TEST_F(HostPort, ipv6_addresses_become_sixteen_bytes)
{
    using address = std::array<std::uint8_t, 16>;
    address got{};
    ASSERT_EQ(platInetPton(DAK_FAMILY_IPV6, "2001:db8::a5", &got), 1);
    EXPECT_EQ(got, (address{0x20, 0x01, 0x0d, 0xb8, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xa5}));
    for (const char *text : {"", "192.0.2.1", "2001:db8::a5::1", "2001:db8::a5 "})
        EXPECT_NE(platInetPton(DAK_FAMILY_IPV6, text, &got), 1) << '"' << text << '"';
}

TEST_F(HostPort, memory_comes_and_goes)
{
    char *block = static_cast<char *>(dak_malloc(16));
    ASSERT_NE(block, nullptr);
    block[15] = 'x';
    dak_free(block);
    dak_free(nullptr);
}

} // namespace
