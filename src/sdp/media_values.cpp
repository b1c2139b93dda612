#include "sdp/media_values.h"

#include "sdp/media_values.hpp"
#include "sdp/text_buffer.hpp"
#include "util/bounded_text.hpp"
#include "util/line_scan.h"
#include "util/report.hpp"

using namespace dak;

namespace {

constexpr ptrdiff_t max_received_value = 198;
constexpr int no_slot = -1;
constexpr size_t tag_length = 2;

// Whether the two characters of a slot's tag begin a text, case-sensitively.
bool is_tagged(const media_description &description, int slot, text_range text)
{
    return text.length() >= tag_length &&
           memcmp(description.media_value_tags[slot], text.first, tag_length) == 0;
}

// The first free slot that `matches`, or no_slot.
template <typename Matches> int find_free_slot(const media_description &description, Matches matches)
{
    for (int slot = 0; slot < SDP_MEDIA_VALUE_SLOTS; slot++) {
        if (description.media_value_present[slot] == 0 && matches(slot))
            return slot;
    }
    return no_slot;
}

int append_field(sdp_lib_context *context, const media_description &description, int slot)
{
    return append_sdp_line(context->text_buffer, short_field_text(description.media_value_tags[slot]),
                           field_text(description.media_values[slot]));
}

} // namespace

int dak::set_media_line(media_description &description, const char *type, text_range value)
{
    const text_range tag(type);
    const int slot = find_free_slot(description, [&description, tag](int candidate) {
        return equal_ignoring_case(description.media_value_tags[candidate], tag);
    });
    if (slot == no_slot) {
        DAK_LOG("No entry found for the tag %s \n", type);
        return fail();
    }
    if (!copy_text(description.media_values[slot], value)) {
        DAK_LOG("src str len exceeds dest str len %lu\n",
                static_cast<unsigned long>(sizeof description.media_values[slot]));
        return fail();
    }
    description.media_value_present[slot] = 1;
    return 1;
}

int dak_sdp_set_media_value(media_description *description, const char *type, const char *value)
{
    if (description == nullptr || type == nullptr || value == nullptr)
        return fail();
    return set_media_line(*description, type, value);
}

int parse_media_description_value(media_description *description, const char *line_start,
                                  const char *line_end)
{
    const char *start = skip_whitespace(line_start, line_end);
    if (description == nullptr || start == nullptr || line_end == nullptr)
        return fail();
    const text_range line(start, line_end);
    const int slot = find_free_slot(*description, [description, line](int candidate) {
        return is_tagged(*description, candidate, line);
    });
    if (slot == no_slot)
        return 1;
    const char *value = skip_whitespace(start + 2, line_end);
    if (line_end - value > max_received_value)
        return fail();
    copy_text(description->media_values[slot], text_range(value, line_end).trimmed());
    description->media_value_present[slot] = 1;
    return 1;
}

const char *get_media_description_value_by_index(const media_description *description, int index,
                                                 const char *type)
{
    if (description == nullptr || type == nullptr)
        return fail_null();
    if (type[0] == '\0' || type[1] == '\0')
        return nullptr;
    const text_range wanted(type, tag_length);
    int match = 0;
    for (int slot = 0; slot < SDP_MEDIA_VALUE_SLOTS; slot++) {
        if (!is_tagged(*description, slot, wanted))
            continue;
        if (description->media_value_present[slot] != 1)
            return nullptr;
        if (match++ == index)
            return description->media_values[slot];
    }
    return nullptr;
}

// Asks for the second line: callers that want the first use the indexed form.
const char *get_media_description_value(const media_description *description, const char *type)
{
    return get_media_description_value_by_index(description, 1, type);
}

int dak_sdp_encode_media_fields(sdp_lib_context *context, media_description *description)
{
    if (context == nullptr || description == nullptr)
        return fail();
    for (int slot = 0; slot < SDP_MEDIA_VALUE_SLOTS; slot++) {
        if (description->media_value_present[slot] == 1 && !append_field(context, *description, slot))
            return fail();
    }
    return 1;
}
