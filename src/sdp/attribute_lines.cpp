#include "sdp/attribute_lines.h"

#include "sdp/attribute_lines.hpp"
#include "sdp/attribute_nodes.hpp"
#include "sdp/document.hpp"
#include "sdp/line_match.h"
#include "sdp/text_buffer.hpp"
#include "util/bounded_text.hpp"
#include "util/report.hpp"
#include "util/scan.hpp"
#include "util/token.h"
#include "util/token.hpp"

using namespace dak;

namespace {

constexpr size_t value_size = 200;

// Whether an attribute is kept as it stands: splitting it would trim nothing off and refuse nothing. A last
// part without a delimiter behind it counts the line's terminator as its own.
bool is_kept_whole(text_range attribute)
{
    if (attribute.empty() || attribute.length() + 1 >= value_size || has_control_characters(attribute) ||
        *attribute.first == ' ' || attribute.last[-1] == ' ')
        return false;
    const char *colon = attribute.find(':');
    return colon == nullptr ||
           (colon != attribute.first && colon + 1 != attribute.last && colon[-1] != ' ' && colon[1] != ' ');
}

bool format_attribute(char (&text)[200], text_range name, const text_range *value)
{
    bool fits = copy_text(text, name);
    if (value == nullptr || !fits)
        return fits;
    const size_t used = name.length();
    fits = copy_text(text + used, sizeof text - used, {":", size_t{1}});
    return fits && copy_text(text + used + 1, sizeof text - used - 1, *value);
}

// Appends an attribute "name:value", or "name" alone, as far as it fits; null when it does not, reported.
session_value *append_attribute(media_description &description, text_range name, const text_range *value)
{
    session_value *node = append_attribute_node(description);
    if (node == nullptr)
        return nullptr;
    if (format_attribute(node->text, name, value))
        return node;
    DAK_LOG("len of src str to be printed exceeded dst str len%d \n", static_cast<int>(sizeof node->text));
    return fail_null();
}

// Fills `value` with the first word behind the colon; leaves it alone when there is none.
void read_first_word(const char *text, char *value)
{
    const type_and_value attribute = split_type_and_value(text, text + strlen(text), ":", nullptr);
    if (attribute.parts == 2)
        copy_text(value, value_size, attribute.value);
}

int count_matches(const session_value *head, const char *name)
{
    uint8_t count = 0;
    for (const session_value *node = head; node != nullptr; node = node->next)
        count = static_cast<uint8_t>(count + find_tag(name, node->text));
    return count;
}

bool first_attribute_matches(const sdp_info_container &document, const char *name)
{
    return document.value_present[attribute_slot] == 1 && find_tag(name, document.values[attribute_slot]);
}

} // namespace

int dak::set_attribute(media_description &description, text_range name, const text_range *value)
{
    session_value *node = append_attribute(description, name, value);
    if (node == nullptr)
        return 0;
    const size_t length = name.length() + (value != nullptr ? 1 + value->length() : 0);
    return copy_text(node->text, text_range(node->text, length).trimmed());
}

bool dak::find_attribute(const media_description &description, text_range name, char *destination)
{
    for (const session_value *node = description.attributes; node != nullptr; node = node->next) {
        if ((name.empty() || *node->text == *name.first) && begins_with(node->text, name) &&
            copy_value(node->text, ":", destination))
            return true;
    }
    return false;
}

int set_media_description_attribute(media_description *description, const char *name, const char *value)
{
    if (description == nullptr || name == nullptr)
        return fail();
    const text_range given = value != nullptr ? value : "";
    return set_attribute(*description, name, value != nullptr ? &given : nullptr);
}

int get_media_description_attribute(const media_description *description, const char *name, char *destination)
{
    if (description == nullptr || name == nullptr || destination == nullptr)
        return fail();
    return find_attribute(*description, name, destination);
}

int dak_encode_media_attribute(sdp_lib_context *context, media_description *description)
{
    if (context == nullptr || description == nullptr)
        return fail();
    for (const session_value *node = description->attributes; node != nullptr; node = node->next) {
        sdp_line line(context);
        line.add("a=").add(node->text).add("\r\n");
        if (line.is_too_long()) {
            DAK_LOG("len of str printed exceeded dst str len%d \n", 200);
            return fail();
        }
        if (!line.write())
            return fail();
    }
    return 1;
}

int parse_sdp_attribute(media_description *description, const char *line_start, const char *line_end)
{
    if (description == nullptr || line_start == nullptr || line_end == nullptr)
        return fail();
    const text_range line(line_start, line_end);
    const text_range text(line.first + (line.length() < 2 ? line.length() : 2), line.last);
    type_and_value attribute(text.first);
    if (is_kept_whole(text)) {
        attribute.type = text;
        attribute.parts = 1;
    } else {
        attribute = split_type_and_value(text.first, text.last, ":", "\r");
    }
    if (attribute.parts == 0) {
        DAK_LOG("parse sdp a=, no values parsed ");
        return 0;
    }
    if (append_attribute(*description, attribute.type, attribute.parts == 2 ? &attribute.value : nullptr))
        return 1;
    DAK_LOG("parse sdp a= ");
    return 0;
}

int dak_sdp_get_number_of_attribute_values(const session_value *head, const char *name)
{
    return head != nullptr && name != nullptr ? count_matches(head, name) : fail();
}

void dak_sdp_get_attribute_value_by_index(const session_value *head, const char *name, int index, char *value)
{
    if (head == nullptr || name == nullptr || value == nullptr) {
        dak_assert_failed();
        return;
    }
    uint8_t match = 0;
    for (const session_value *node = head; node != nullptr; node = node->next) {
        if (find_tag(name, node->text) && match++ == index) {
            read_first_word(node->text, value);
            return;
        }
    }
}

int dak_sdp_get_number_of_session_attribute_values(sdp_lib_context *context, int selector, const char *name)
{
    const sdp_info_container *document = selected_document(context, selector);
    if (document == nullptr)
        return 0;
    if (name == nullptr)
        return fail();
    const int further = dak_sdp_get_number_of_attribute_values(document->extra_values[attribute_slot], name);
    return static_cast<uint8_t>(further + first_attribute_matches(*document, name));
}

void dak_sdp_get_session_attribute_value_by_index(sdp_lib_context *context, int selector, const char *name,
                                                  int index, char *value)
{
    const sdp_info_container *document = selected_document(context, selector);
    if (document == nullptr)
        return;
    if (name == nullptr || value == nullptr) {
        dak_assert_failed();
        return;
    }
    const bool has_first = first_attribute_matches(*document, name);
    if (has_first && index == 0)
        read_first_word(document->values[attribute_slot], value);
    else
        dak_sdp_get_attribute_value_by_index(document->extra_values[attribute_slot], name,
                                             has_first && index > 0 ? index - 1 : index, value);
}

int dak_sdp_get_number_of_media_attribute_values(const media_description *description, const char *name)
{
    return description != nullptr ? dak_sdp_get_number_of_attribute_values(description->attributes, name)
                                  : fail();
}

void dak_sdp_get_media_attribute_value_by_index(const media_description *description, const char *name,
                                                int index, char *value)
{
    if (description == nullptr)
        dak_assert_failed();
    else
        dak_sdp_get_attribute_value_by_index(description->attributes, name, index, value);
}
