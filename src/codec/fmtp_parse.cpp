#include "codec/fmtp_parse.h"

#include "codec/parameters.hpp"
#include "codec/registry.h"
#include "sdp/codec_access.hpp"
#include "util/bounded_text.hpp"
#include "util/number.h"
#include "util/token.hpp"

using namespace dak;

namespace {

constexpr size_t max_size = 200; // of a name or a value, with its terminator

// Formats whose parameters may be separated by blanks; a name in other case is split at ";" alone.
constexpr const char *blank_separated[] = {"EVRC", "EVRC0", "EVRC1", "EVRCB", "EVRCB0", "EVRCB1"};

bool splits_at_blanks(const media_codec &codec)
{
    const text_range name = field_text(codec.mime_type);
    for (const char *candidate : blank_separated) {
        if (name.equals(candidate))
            return true;
    }
    return false;
}

// Takes the next run of characters between delimiters off `rest`; empty at the end of the line.
text_range take_piece(text_range &rest, bool at_blanks)
{
    const auto delimits = [at_blanks](char c) { return c == ';' || (at_blanks && c == ' '); };
    while (!rest.empty() && delimits(*rest.first))
        rest.first++;
    const char *start = rest.first;
    while (!rest.empty() && !delimits(*rest.first))
        rest.first++;
    return {start, rest.first};
}

// The payload format that the head of the line names; `parameters` is what follows its number.
int read_head(const media_description &description, text_range line, text_range &parameters)
{
    const type_and_value head = split_type_and_value(line.first, line.last, ":", nullptr);
    if (head.parts != 2) {
        dak_assert_failed();
        return -1;
    }
    uint32_t number = 0;
    if (!dak_atoi(head.value.first, DAK_ATOI_LENIENT, static_cast<uint32_t>(head.value.length()), &number))
        return -1;
    const int index = find_payload(description, number);
    uint32_t mime = 0;
    if (!has_codec(description, index) || !dak_sdp_get_mime_val(description.codecs[index].mime_type, &mime)) {
        dak_assert_failed();
        return -1;
    }
    parameters = {head.next, line.last};
    return index;
}

// Stores one "name=value", or a bare value under the empty name.
int store_parameter(media_codec &codec, const codec_kind *kind, text_range piece)
{
    piece.skip_blanks();
    if (piece.empty() || *piece.first == '=')
        return fail();
    const bool has_name = piece.find('=') != nullptr;
    text_range value = piece;
    const text_range name = has_name ? value.take_until('=').trimmed() : text_range();
    value = value.trimmed();
    if (value.empty() || name.length() >= max_size || value.length() >= max_size)
        return fail();
    if (kind != nullptr && set_parameter(codec, *kind, name.terminated().trimmed(), value.terminated()))
        return 1;
    // Without its name the payload format is unusable for those who look formats up by name.
    DAK_LOG("Invalid MIME or an invalid attribute\n");
    codec.mime_type[0] = '\0';
    return 0;
}

} // namespace

int parse_a_equal_fmtp_line(media_description *description, const char *line_start, const char *line_end)
{
    if (description == nullptr || line_start == nullptr || line_end == nullptr)
        return 0;
    text_range rest;
    const int index = read_head(*description, {line_start, line_end}, rest);
    if (index < 0)
        return 0;
    media_codec &codec = description->codecs[index];
    const codec_kind *kind = find_kind(codec);
    const bool at_blanks = splits_at_blanks(codec);
    for (text_range piece = take_piece(rest, at_blanks); !piece.empty();
         piece = take_piece(rest, at_blanks)) {
        if (!store_parameter(codec, kind, piece))
            return 0;
    }
    return 1;
}
