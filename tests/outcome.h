#ifndef DAKSDP_TESTS_OUTCOME_H
#define DAKSDP_TESTS_OUTCOME_H

#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "daksdp.h"
#include "platform_test.h"

template <auto Release> struct released_by {
    template <class Record> void operator()(Record *record) const { Release(record); }
};
using context_ptr = std::unique_ptr<sdp_lib_context, released_by<clean_sdp_lib>>;

// A media section, usable where a plain pointer is wanted.
struct section_ptr : std::unique_ptr<media_description, released_by<clean_media_description>> {
    using unique_ptr::unique_ptr;
    operator media_description *() const { return get(); }
};

// A media section of one port, as "RTP/AVP 96=H264 99": its profile and payload numbers, and the encoding names
// that are bound to them.
inline section_ptr new_section(const std::string &profile_and_payloads)
{
    std::istringstream in(profile_and_payloads);
    std::string profile, word;
    std::vector<uint32_t> numbers;
    std::vector<std::string> names;
    for (in >> profile; in >> word; names.push_back(word.erase(0, word.find('='))))
        numbers.push_back(static_cast<uint32_t>(std::stoul(word)));
    section_ptr section(init_media_description("audio", 49170, 1, profile.c_str(), numbers.data(),
                                               static_cast<int>(numbers.size())));
    for (std::size_t i = 0; i < names.size(); ++i)
        if (!names[i].empty())
            add_media_codec_to_media_description(section.get(), static_cast<int32_t>(numbers[i]),
                                                 names[i].c_str() + 1, 8000, 1);
    return section;
}

// What a call gave: its result, what it wrote or left behind, its log lines joined by "|", and whether it
// reported an assertion at least once.
struct outcome {
    int result = 1;
    std::string text;
    std::string log;
    bool reported = false;

    bool operator==(const outcome &) const = default;
};

inline std::ostream &operator<<(std::ostream &out, const outcome &seen)
{
    return out << seen.result << (seen.reported ? " (reported) " : " ") << testing::PrintToString(seen.text)
               << " log " << testing::PrintToString(seen.log);
}

// The outcome of a call that says something and reports nothing.
inline outcome log_only(int result, std::string log, std::string text = "")
{
    return {result, std::move(text), std::move(log)};
}

// Makes a call; `show` tells afterwards what it left behind. Every log line is an error without tag.
template <class Call, class Show> outcome outcome_of(Call call, Show show)
{
    std::size_t line = standin::logs().size();
    const std::size_t reports = standin::assert_count();
    outcome seen{call()};
    seen.reported = standin::assert_count() > reports;
    for (const char *glue = ""; line < standin::logs().size(); ++line, glue = "|") {
        const standin::log_line &each = standin::logs()[line];
        EXPECT_TRUE(each.priority == 6 && !each.tagged) << each;
        seen.log += glue + each.text;
    }
    seen.text = show();
    return seen;
}

template <class Call> outcome outcome_of(Call call)
{
    return outcome_of(call, [] { return std::string(); });
}

// Writes into a text buffer that has room for so many characters.
template <class Write> outcome written(Write write, std::size_t room = SDP_TEXT_CAPACITY)
{
    const context_ptr context(init_sdp_lib());
    const std::string before(SDP_TEXT_CAPACITY - room, '.');
    fill_sdp_buffer(context.get(), before.c_str());
    return outcome_of([&] { return write(context.get()); },
                      [&] { return std::string(get_sdp_text(context.get())).substr(before.size()); });
}

// Calls a writer that takes a context in front of these arguments.
template <class Write, class... Arguments> outcome written_by(Write write, const Arguments &...arguments)
{
    return written([&](sdp_lib_context *context) { return write(context, arguments...); });
}

// What may stand at the end of a line, the end of the text included, and what is the next line's.
inline const std::string_view line_ends[] = {"\r\n=9;crc=9", "\n=9;crc=9", "\r", {"\0", 1}};

using line_reader = int (*)(media_description *section, const char *line_start, const char *line_end);

// Reads a line out of a block that ends behind the line's terminator.
inline int read_line(line_reader reader, media_description *section, std::string_view line,
                     std::string_view line_end = "\r\n")
{
    const heap_text text(std::string(line).append(line_end));
    return reader(section, text.begin(), text.begin() + line.size());
}

#endif
