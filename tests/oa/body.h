#ifndef DAKSDP_TESTS_OA_BODY_H
#define DAKSDP_TESTS_OA_BODY_H

#include <vector>

#include "oa/cases.h"
#include "oa/container_text.h"

namespace oa_tests {

inline std::string replaced(std::string text, std::string_view from, std::string_view to)
{
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

// The outcome of a call; `show` tells what it left behind.
template <class Call, class Show> outcome seen(Call call, Show show)
{
    return outcome_of([&] { return static_cast<int>(call()); }, show);
}
template <class Call> outcome seen(Call call)
{
    return seen(call, [] { return std::string(); });
}

// Parses text that ends with its block into a container full of old bytes.
inline uint32_t parse_into(sdp_container &container, std::string_view text)
{
    const heap_text block(text);
    const sdp_payload_buffer buffer = {block.data(), static_cast<uint16_t>(block.size())};
    std::memset(&container, 0xEE, sizeof container);
    const uint32_t result = dak_app_oa_parse_sdp(&container, &buffer);
    EXPECT_EQ(block.view(), text);
    return result;
}

// A container whose media lines lie in a block of exactly their size: what a text holds, if there is one, and
// what is changed of it. A change "lines=3" gives it that many media lines, those that are added like the
// first.
class body {
public:
    explicit body(const std::string &changes = "", const std::string &text = "")
    {
        if (!text.empty()) {
            EXPECT_EQ(parse_into(session, text), 0U) << text;
            lines.assign(session.mlines, session.mlines + session.num_mlines);
            dak_app_oa_cleanup_sdp_container(&session);
            resize(lines.size());
        }
        change(changes);
    }
    explicit body(const test_case &given) : body(given["change"], given.lines("sdp")) {}
    body(const body &) = delete;

    void change(const std::string &changes)
    {
        for_each_change(changes, [&](const setter &set) {
            if (set.path == "lines")
                resize(std::stoul(set.value)), ++set.found;
            else
                each(session, set);
        });
    }
    // The container and its media lines, byte for byte.
    std::string bytes() const
    {
        return std::string(reinterpret_cast<const char *>(&session), sizeof session)
            .append(reinterpret_cast<const char *>(lines.data()), lines.size() * sizeof(sdp_media_line));
    }

    sdp_container session = {};
    std::vector<sdp_media_line> lines;

private:
    void resize(std::size_t count)
    {
        lines.resize(count, lines.empty() ? sdp_media_line() : lines[0]);
        lines.shrink_to_fit();
        session.mlines = lines.data();
        session.num_mlines = static_cast<uint16_t>(count);
    }
};

// Generates into a block of exactly this capacity. The buffer is written on success alone, and only as far
// as the terminator. On success the log is without the line about the lengths.
inline outcome generate(sdp_container &container, uint16_t capacity = 4096)
{
    const heap_text block(std::string(capacity, '#'));
    sdp_payload_buffer buffer = {block.data(), capacity};
    outcome written = seen([&] { return dak_app_oa_generate_sdp(&container, &buffer); });
    const bool is_written = written.result == 0;
    const std::string_view text = block.view().substr(0, is_written ? std::strlen(block.data()) : 0);
    EXPECT_EQ(block.view().substr(text.size() + is_written).find_first_not_of('#'), std::string::npos);
    EXPECT_EQ(std::count(text.begin(), text.end(), '\r'), std::count(text.begin(), text.end(), '\n'));
    written.text = replaced(std::string(text), "\r\n", "\n");
    const std::string lengths = "dak_app_oa_generate_sdp: SDP out length: " + std::to_string(text.size()) +
                                ", In length: " + std::to_string(capacity) + "\n";
    if (is_written) {
        EXPECT_TRUE(written.log.ends_with(lengths)) << written.log;
        written.log.resize(written.log.size() - lengths.size() - (written.log.size() > lengths.size()));
    }
    return written;
}

// What parsing makes of a text. The lower layer's line about media lines without preconditions is left out.
inline outcome parse(std::string_view text)
{
    sdp_container container;
    outcome parsed = seen([&] { return parse_into(container, text); }, [&] { return dump(container); });
    const std::string none =
        "|get_number_of_precond_attrs :                          no pcd attributes found \n";
    parsed.log = replaced("|" + parsed.log, none, "").erase(0, 1);
    EXPECT_EQ(dak_app_oa_cleanup_sdp_container(&container), 0U);
    EXPECT_TRUE(container.num_mlines == 0 && container.mlines == nullptr);
    return parsed;
}

} // namespace oa_tests

#endif
