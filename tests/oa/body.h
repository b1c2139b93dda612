#ifndef DAKSDP_TESTS_OA_BODY_H
#define DAKSDP_TESTS_OA_BODY_H

#include <ostream>
#include <vector>

#include "container_text.h"
#include "platform_test.h"

namespace oa_tests {

// What a call gave: its result, what it wrote or left behind, and its log lines.
struct outcome {
    uint32_t result = 0;
    std::string text;
    std::string log;

    bool operator==(const outcome &) const = default;
};

inline std::ostream &operator<<(std::ostream &out, const outcome &seen)
{
    return out << seen.result << ' ' << seen.text << "\n  log " << testing::PrintToString(seen.log);
}

inline std::string replaced(std::string text, std::string_view from, std::string_view to)
{
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

// The log lines behind the first ones, joined by "|". "dak_app_oa_" is shown as "~", a line feed as "$" and
// a run of three blanks or more as its length, so that a row of a table fits a line.
inline std::string log_behind(std::size_t first)
{
    std::string out;
    for (std::size_t i = first; i < standin::logs().size(); ++i) {
        const standin::log_line &line = standin::logs()[i];
        EXPECT_TRUE(line.priority == 6 && !line.tagged) << line;
        out += (i == first ? "" : "|") + replaced(line.text, "dak_app_oa_", "~");
    }
    std::replace(out.begin(), out.end(), '\n', '$');
    for (std::size_t at = out.find("   "); at != std::string::npos; at = out.find("   ")) {
        const std::size_t length = std::min(out.find_first_not_of(' ', at), out.size()) - at;
        out.replace(at, length, "{" + std::to_string(length) + "}");
    }
    return out;
}

// The formats of all log lines that show a value, each once and with "$" for a line feed.
inline std::string formats_with_values()
{
    std::string out = "|";
    for (const standin::log_line &line : standin::logs())
        if (line.format.find('%') != std::string::npos &&
            out.find("|" + line.format + "|") == std::string::npos)
            out += line.format + "|";
    out = replaced(out, "\n", "$");
    return out;
}

template <class Call> outcome outcome_of(Call call)
{
    const std::size_t first = standin::logs().size();
    outcome seen{static_cast<uint32_t>(call())};
    seen.log = log_behind(first);
    return seen;
}

// A function of two pointers takes null for neither: 3, with this log line.
template <class Function, class First, class Second>
void expect_no_null(Function function, First *first, Second *second, const char *log)
{
    EXPECT_EQ(outcome_of([&] { return function(first, nullptr); }), (outcome{3, "", log}));
    EXPECT_EQ(outcome_of([&] { return function(nullptr, second); }), (outcome{3, "", log}));
}

// A container with media lines of its own: the lines v=0, "o=- 1 2 IN IP4 h" and s=-, and what is changed.
struct body {
    explicit body(const std::string &changes = "", std::size_t count = 0) : lines(count)
    {
        if (count != 0)
            session.mlines = lines.data();
        session.num_mlines = static_cast<uint16_t>(count);
        change(session, "user=- id=1 ver=2 oa.at=h");
        change(session, changes);
    }
    body(const body &) = delete;

    std::vector<sdp_media_line> lines;
    sdp_container session = {};
};

// The container and its media lines, byte for byte.
inline std::string bytes_of(const sdp_container &container)
{
    std::string bytes(reinterpret_cast<const char *>(&container), sizeof container);
    if (container.mlines != nullptr)
        bytes.append(reinterpret_cast<const char *>(container.mlines),
                     container.num_mlines * sizeof(sdp_media_line));
    return bytes;
}

// Generates into a block of exactly this capacity. The buffer is written on success alone, and only as far
// as the terminator; the container is only read. On success the log is without the line about the lengths.
inline outcome generate(sdp_container &container, uint16_t capacity = 4096)
{
    const heap_text block(std::string(capacity, '#'));
    sdp_payload_buffer buffer = {block.data(), capacity};
    const std::string before = bytes_of(container);
    outcome seen = outcome_of([&] { return dak_app_oa_generate_sdp(&container, &buffer); });
    EXPECT_TRUE(bytes_of(container) == before);
    const std::string_view text = block.view().substr(0, seen.result == 0 ? std::strlen(block.data()) : 0);
    EXPECT_EQ(block.view().substr(text.size() + (seen.result == 0)).find_first_not_of('#'),
              std::string::npos);
    seen.text = replaced(std::string(text), "\r\n", "\n");
    EXPECT_EQ(std::count(text.begin(), text.end(), '\r'), std::count(text.begin(), text.end(), '\n'));
    const std::string lengths = "~generate_sdp: SDP out length: " + std::to_string(text.size()) +
                                ", In length: " + std::to_string(capacity) + "$";
    if (seen.result == 0) {
        EXPECT_TRUE(seen.log.ends_with(lengths)) << seen.log;
        seen.log.resize(seen.log.size() - lengths.size() - (seen.log.size() > lengths.size()));
    }
    return seen;
}

// Parses text that ends with its block into a container full of old bytes, and shows what it then holds. The
// lower layer's line about media lines without preconditions is left out.
inline outcome parse(std::string_view text)
{
    const heap_text block(text);
    const sdp_payload_buffer buffer = {block.data(), static_cast<uint16_t>(block.size())};
    sdp_container container;
    std::memset(&container, 0xEE, sizeof container);
    outcome seen = outcome_of([&] { return dak_app_oa_parse_sdp(&container, &buffer); });
    EXPECT_EQ(block.view(), text);
    seen.text = dump(container);
    seen.log = replaced("|" + seen.log, "|get_number_of_precond_attrs :{26}no pcd attributes found $", "");
    seen.log.erase(0, 1);
    EXPECT_EQ(dak_app_oa_cleanup_sdp_container(&container), 0U);
    EXPECT_TRUE(container.num_mlines == 0 && container.mlines == nullptr);
    return seen;
}

} // namespace oa_tests

#endif
