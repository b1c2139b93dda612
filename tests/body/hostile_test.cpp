#include "hostile_bodies.h"
#include "reading.h"
#include "support.h"

namespace {

class Hostile : public PlatformTest {};

std::string repeated(const std::string &line, std::size_t size)
{
    std::string text;
    while (text.size() + line.size() <= size)
        text += line;
    return text;
}

// Every kind at the greatest length that a container's face takes. A reader that goes round in circles meets the
// time limit of the test; scripts/bench linear watches how time grows with the length.
TEST_F(Hostile, bodies_of_one_kind_of_line_are_read_to_their_end)
{
    for (const hostile_body &kind : hostile_bodies) {
        const reading seen(kind.text(65535));
        const context_ptr context(init_sdp_lib());
        EXPECT_EQ(sdp_parse(context.get(), seen.block.data(), 65535), seen.result != 6) << kind.name;
    }
}

TEST_F(Hostile, more_than_a_document_holds_is_refused)
{
    const std::string media = "m=audio 9 RTP/AVP 0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19\n";
    const std::tuple<const char *, std::string, uint32_t, int, int> rows[] = {
        {"thirty sections of twenty payloads", repeated(media, 30 * media.size()), 0, 1, 30},
        {"thirty-one sections", repeated(media, 31 * media.size()), 0, 0, 30},
        {"a twenty-first payload", media + media.substr(0, media.size() - 1) + " 20\n", 0, 0, 1},
        {"a NUL in a media line", std::string("m=a 1 b\nm=a\0 1 b\n", 17), 0, 0, 1},
        {"a NUL behind a line", std::string("m=a 1 b\n\0m=a 1 b\n", 17), 0, 1, 1},
        {"a length behind the end of the text", "m=a 1 b\n", UINT32_MAX, 1, 1},
        {"8-bit characters", "s=\xFF\x80\nm=\xFE 1 \xFD \xFC\na=\xC3\xA9:\x80\n", 0, 1, 1},
    };
    for (const auto &[label, body, length, result, sections] : rows) {
        const context_ptr context(init_sdp_lib());
        const heap_c_text text(body);
        EXPECT_EQ(sdp_parse(context.get(), text.c_str(), length != 0 ? length : uint32_t(text.size())),
                  result)
            << label;
        EXPECT_EQ(get_number_of_media_description(context.get(), 1), sections) << label;
    }
}

} // namespace
