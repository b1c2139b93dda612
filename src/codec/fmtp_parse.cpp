#include "codec/fmtp_parse.h"

#include "codec/parameters.hpp"
#include "sdp/codec_access.hpp"
#include "util/number.hpp"
#include "util/token.hpp"

using namespace dak;

namespace {

constexpr size_t max_size = 200; // of a name or a value, with its terminator

// What a line is about: the record of its payload format, and the text behind the format's number.
struct fmtp_line {
    media_codec *codec;
    const codec_kind *kind;
    text_range parameters;
};

// The kinds whose writers separate parameters by blanks are read so too, under their names as registered; a
// name in other case is split at ";" alone.
bool splits_at_blanks(const media_codec &codec, const codec_kind &kind)
{
    const text_range name = field_text(codec.mime_type);
    return *kind.separator == ' ' && name.equals(registered_name(name));
}

// Takes the next run of characters between delimiters off `rest`; empty at the end of the line.
text_range take_piece(text_range &rest, bool at_blanks)
{
    const auto delimits = [at_blanks](char c) { return c == ';' || (at_blanks && c == ' '); };
    while (!rest.empty() && delimits(*rest.first))
        rest.first++;
    if (!at_blanks)
        return rest.take_until(';');
    const char *start = rest.first;
    while (!rest.empty() && !delimits(*rest.first))
        rest.first++;
    return {start, rest.first};
}

// Reads the head of a line; false for one without a payload format that is known by name.
bool read_head(const media_description &description, text_range text, fmtp_line &line)
{
    const type_and_value head = split_type_and_value(text.first, text.last, ":", nullptr);
    if (head.parts != 2)
        return fail();
    uint32_t number = 0;
    if (!read_lenient(head.value, number))
        return false;
    const int index = find_payload(description, number);
    if (!has_codec(description, index))
        return fail();
    line.codec = &description.codecs[index];
    line.kind = find_kind(*line.codec);
    line.parameters = {head.next, text.last};
    return line.kind != nullptr || fail();
}

// Stores one "name=value", or a bare value under the empty name.
int store_parameter(media_codec &codec, const codec_kind &kind, text_range piece)
{
    piece.skip_blanks();
    if (piece.empty() || *piece.first == '=')
        return fail();
    const char *equals = piece.find('=');
    text_range name(piece.first, equals != nullptr ? equals : piece.first);
    text_range value(equals != nullptr ? equals + 1 : piece.first, piece.last);
    name = name.trimmed();
    value = value.trimmed();
    if (value.empty() || name.length() >= max_size || value.length() >= max_size)
        return fail();
    if (piece.find('\0') != nullptr) {
        name = name.terminated().trimmed();
        value = value.terminated();
    }
    if (set_parameter(codec, kind, name, value))
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
    fmtp_line line = {nullptr, nullptr, {line_start, line_start}};
    if (!read_head(*description, {line_start, line_end}, line))
        return 0;
    const bool at_blanks = splits_at_blanks(*line.codec, *line.kind);
    text_range piece = take_piece(line.parameters, at_blanks);
    for (; !piece.empty(); piece = take_piece(line.parameters, at_blanks)) {
        if (!store_parameter(*line.codec, *line.kind, piece))
            return 0;
    }
    return 1;
}
