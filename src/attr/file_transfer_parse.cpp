// Reading file-selector, file-transfer-id, file-disposition, file-date, file-icon and file-range lines.

#include "attr/file_transfer.h"

#include "attr/attribute_line.hpp"
#include "attr/content_type.hpp"
#include "util/number.hpp"
#include "util/report.hpp"
#include "util/token.hpp"

using namespace dak;

namespace {

uint32_t read_disposition(text_range word)
{
    if (word.equals("inline"))
        return SDP_FILE_INLINE;
    if (word.equals("attachment"))
        return SDP_FILE_ATTACHMENT;
    return word.equals("render") ? SDP_FILE_RENDER : SDP_FILE_OTHER_DISPOSITION;
}

// The record's field for what stands in front of the opening quote, or null.
char (*date_field(sdp_file_date &date, text_range head))[256]
{
    if (head.equals("a=file-date:creation:"))
        return &date.creation;
    if (head.equals("a=file-date:modification:"))
        return &date.modification;
    return head.equals("a=file-date:read:") ? &date.read : nullptr;
}

void store_date(sdp_file_date &date, text_range line)
{
    const text_range head = line.take_until('"');
    char(*field)[256] = date_field(date, head);
    if (field != nullptr && line.find('"') != nullptr)
        copy_text(*field, line.take_until('"'));
}

void store_icon(media_description &section, text_range value)
{
    const bool is_content_id = value.take_until(':').trimmed().equals("cid");
    if (is_content_id && !value.trimmed().empty())
        copy_text(section.file_icon, value.trimmed());
}

void store_range(sdp_file_range &range, text_range value)
{
    const bool has_stop = value.find('-') != nullptr;
    range.start = read_saturating(value.take_until('-'));
    if (has_stop)
        range.stop = read_saturating(value);
}

text_range take_item(text_range &rest) { return rest.take_token(" \t"); }

// Reads the text between quotes, blanks and colons included; a word without quotes is no name.
void store_name(sdp_file_selector &selector, text_range &rest)
{
    rest.skip_blanks();
    if (!rest.begins_with("\"")) {
        take_item(rest);
        return;
    }
    rest.first++;
    copy_text(selector.name, rest.take_until('"'));
}

// A type other than the four image types leaves the selector without one.
void store_type(sdp_file_selector &selector, text_range word)
{
    const uint32_t type = read_content_type(word, SDP_ACCEPT_JPEG, SDP_ACCEPT_GIF);
    if (is_file_type(type))
        selector.type = type;
}

void store_hash(sdp_file_selector &selector, text_range word)
{
    if (!word.take_until(':').equals("sha-1"))
        return;
    selector.hash_alg = SDP_FILE_HASH_SHA1;
    copy_text(selector.hash, word);
    selector.hash_len = static_cast<uint32_t>(word.length());
}

// Reads the "key:value" items of a selector; unknown keys and algorithms are passed over.
void read_selector(sdp_file_selector &selector, text_range rest)
{
    for (rest.skip_blanks(); !rest.empty(); rest.skip_blanks()) {
        const text_range key = rest.take_until(':');
        if (key.equals("name"))
            store_name(selector, rest);
        else if (key.equals("type"))
            store_type(selector, take_item(rest));
        else if (key.equals("size"))
            selector.size = static_cast<uint32_t>(read_saturating(take_item(rest)));
        else if (key.equals("hash"))
            store_hash(selector, take_item(rest));
        else
            take_item(rest);
    }
}

int store_selector(media_description &section, const char *line_start, const char *line_end)
{
    const int32_t stored = section.num_file_selectors < 0 ? 0 : section.num_file_selectors;
    if (stored >= SDP_MAX_FILE_SELECTORS)
        return 1;
    const type_and_value line = split_type_and_value(line_start, line_end, ":", "\r");
    if (line.parts == 0)
        return fail();
    sdp_file_selector &selector = section.file_selectors[stored];
    selector = {};
    if (line.parts == 2)
        read_selector(selector, line.value);
    else
        selector.empty = 1;
    // A selector without a value restarts the count; callers take it for the only one.
    section.num_file_selectors = line.parts == 2 ? stored + 1 : 1;
    return 1;
}

} // namespace

int dak_sdp_parse_a_equal_file_transfer_id_line(media_description *description, const char *line_start,
                                                const char *line_end)
{
    return read_message_line(
        description, line_start, line_end,
        [](media_description &section, text_range value) { copy_text(section.file_transfer_id, value); });
}

int dak_sdp_parse_a_equal_file_disposition_line(media_description *description, const char *line_start,
                                                const char *line_end)
{
    return read_message_line(description, line_start, line_end,
                             [](media_description &section, text_range value) {
                                 section.file_disposition = {1, read_disposition(value)};
                             });
}

int dak_sdp_parse_a_equal_file_date_line(media_description *description, const char *line_start,
                                         const char *line_end)
{
    const text_range line(line_start, line_end);
    return read_message_line(
        description, line_start, line_end,
        [line](media_description &section, text_range) { store_date(section.file_date, line); });
}

int dak_sdp_parse_a_equal_file_icon_line(media_description *description, const char *line_start,
                                         const char *line_end)
{
    return read_message_line(description, line_start, line_end, store_icon);
}

int dak_sdp_parse_a_equal_file_range_line(media_description *description, const char *line_start,
                                          const char *line_end)
{
    return read_message_line(
        description, line_start, line_end,
        [](media_description &section, text_range value) { store_range(section.file_range, value); });
}

int dak_sdp_parse_a_equal_file_selector_line(media_description *description, const char *line_start,
                                             const char *line_end)
{
    if (!has_read_arguments(description, line_start, line_end))
        return 0;
    if (!is_message_session(*description))
        return skip_for_profile(*description);
    return store_selector(*description, line_start, line_end);
}
