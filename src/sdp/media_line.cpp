// Reading m= lines.

#include "sdp/parser.h"

#include "sdp/codec_access.hpp"
#include "sdp/line_match.h"
#include "sdp/media_codecs.h"
#include "sdp/media_description.h"
#include "sdp/parser.hpp"
#include "util/line_scan.h"
#include "util/number.hpp"
#include "util/report.hpp"
#include "util/text_range.hpp"
#include "util/token.hpp"

using namespace dak;

namespace {

// Takes the next word of the line; empty at its end.
text_range take_word(const char *&position, const char *end)
{
    text_range token(position, position);
    if (!take_token(position, end, nullptr, token))
        return {};
    position = token.last;
    return token;
}

bool read_number(text_range text, uint32_t &number) { return !text.empty() && read_lenient(text, number); }

// Reads "port" or "port/count".
int read_ports(media_description *description, text_range token)
{
    uint32_t count = 1;
    const bool has_count = token.find('/') != nullptr;
    const text_range port = token.take_until('/');
    if (!read_number(port, description->media_port) || (has_count && !read_number(token, count)))
        return 0;
    return set_number_of_media_port(description, count);
}

int read_format(media_description *description, text_range token)
{
    uint32_t payload_number = 0;
    if (read_number(token, payload_number))
        return set_payload_number(description, static_cast<int32_t>(payload_number));
    return set_media_format(description, token.first, static_cast<uint32_t>(token.length()));
}

int read_fields(media_description *description, const char *position, const char *end)
{
    const text_range type = take_word(position, end);
    if (!set_media_type(description, type.first, static_cast<uint32_t>(type.length())))
        return 0;
    if (!read_ports(description, take_word(position, end)))
        return 0;
    const text_range profile = take_word(position, end);
    if (!set_transport_profile(description, profile.first, static_cast<uint32_t>(profile.length())))
        return 0;
    for (text_range format = take_word(position, end); !format.empty(); format = take_word(position, end)) {
        if (!read_format(description, format))
            return 0;
    }
    return 1;
}

} // namespace

int dak::read_media_line(const char *line_start, const char *line_end, media_description *description,
                         audience seen_by)
{
    const char *start = skip_whitespace(line_start, line_end);
    if (description == nullptr || start == nullptr || line_end == nullptr ||
        !find_media_description(start, line_end))
        return fail();
    if (!read_fields(description, start + 2, line_end))
        return fail();
    const int count = payload_count(*description);
    return description->codec_capacity >= count || allocate_codecs(*description, count, seen_by) ? 1 : fail();
}

int process_media_description(const char *line_start, const char *line_end, media_description *description)
{
    return read_media_line(line_start, line_end, description, audience::caller);
}
