#include "sdp/session_values.h"

#include "sdp/document.h"
#include "sdp/document.hpp"
#include "sdp/line_match.h"
#include "sdp/session_values.hpp"
#include "sdp/value_list.hpp"
#include "util/bounded_text.hpp"
#include "util/line_scan.h"
#include "util/report.hpp"
#include "util/token.h"
#include "util/token.hpp"

using namespace dak;

namespace {

constexpr ptrdiff_t max_received_value = 198;

int fail_as_too_long()
{
    DAK_LOG("src str len exceeds dest str len %lu\n", static_cast<unsigned long>(sizeof session_value::text));
    return fail();
}

int find_slot_ignoring_case(const sdp_info_container &document, text_range tag)
{
    for (int slot = 0; slot < SDP_SESSION_SLOTS; slot++) {
        if (equal_ignoring_case(document.type_tags[slot], tag))
            return slot;
    }
    return no_slot;
}

// Too long a first value leaves the slot as it was; a further one stays, cut, in the list.
int store(sdp_info_container &document, int slot, text_range value)
{
    if (document.value_present[slot] == 0) {
        if (value.length() >= sizeof document.values[slot])
            return fail_as_too_long();
        copy_text(document.values[slot], value);
        document.value_present[slot] = 1;
        return 1;
    }
    session_value *node = append_value(document.extra_values[slot], document.extra_tail[slot]);
    if (node == nullptr)
        return 0;
    return copy_text(node->text, value) ? 1 : fail_as_too_long();
}

// A line of a slot; null when there are no more than `position`.
const char *value_at(const sdp_info_container &document, int slot, int position)
{
    if (document.value_present[slot] != 1)
        return nullptr;
    if (position == 0)
        return document.values[slot];
    const session_value *node = dak_sdp_traverse_list(document.extra_values[slot], position);
    return node != nullptr ? node->text : nullptr;
}

} // namespace

int dak::set_session_value(sdp_lib_context *context, session_slot slot, text_range value)
{
    sdp_info_container *document = selected_document(context, SDP_ENCODER_DOCUMENT);
    return document != nullptr ? store(*document, slot, value) : 0;
}

const char *dak::get_session_value(const sdp_lib_context *context, session_slot slot, int position)
{
    const sdp_info_container *document = selected_document(context, SDP_PARSER_DOCUMENT);
    return document != nullptr ? value_at(*document, slot, position) : nullptr;
}

int set_session_value(sdp_lib_context *context, int selector, const char *tag, const char *value)
{
    sdp_info_container *document = selected_document(context, selector);
    return document != nullptr ? set_session_value_by_sdp_container(document, tag, value) : 0;
}

int set_session_value_by_sdp_container(sdp_info_container *document, const char *tag, const char *value)
{
    if (document == nullptr || tag == nullptr || value == nullptr)
        return fail();
    const int slot = find_slot_ignoring_case(*document, tag);
    return slot != no_slot ? store(*document, slot, value) : fail();
}

int parse_session_value(sdp_info_container *document, const char *line_start, const char *line_end)
{
    const char *start = skip_whitespace(line_start, line_end);
    if (document == nullptr || start == nullptr || line_end == nullptr)
        return fail();
    if (find_media_description(start, line_end))
        return 0;
    const int slot = find_slot(*document, {start, line_end});
    if (slot == no_slot)
        return fail();
    const char *value = skip_whitespace(start + 2, line_end);
    if (line_end - value > max_received_value)
        return fail();
    return store(*document, slot, text_range(value, line_end).trimmed());
}

const char *get_session_value(sdp_lib_context *context, int selector, const char *tag)
{
    return get_particular_index_of_session_value(context, selector, tag, 0);
}

const char *get_particular_index_of_session_value(sdp_lib_context *context, int selector, const char *tag,
                                                  int position)
{
    sdp_info_container *document = selected_document(context, selector);
    return document != nullptr ? get_seesion_value_by_sdp_container(document, tag, position) : nullptr;
}

const char *get_seesion_value_by_sdp_container(sdp_info_container *document, const char *tag, int position)
{
    if (document == nullptr || tag == nullptr)
        return fail_null();
    text_range wanted(tag);
    wanted.skip_blanks();
    if (wanted.empty())
        return nullptr;
    const int slot = find_slot(*document, wanted);
    return slot != no_slot ? value_at(*document, slot, position) : fail_null();
}

session_value *dak_sdp_traverse_list(session_value *head, int position)
{
    if (position < 1)
        return nullptr;
    for (; head != nullptr && position > 1; position--)
        head = head->next;
    return head;
}

int get_session_attribute_value(sdp_lib_context *context, int selector, const char *name, char *destination)
{
    const sdp_info_container *document = selected_document(context, selector);
    if (document == nullptr)
        return 0;
    if (name == nullptr || destination == nullptr)
        return fail();
    if (find_type_return_value(document->values[attribute_slot], name, ":", destination))
        return 1;
    const text_range wanted(name);
    const session_value *node = document->extra_values[attribute_slot];
    for (; node != nullptr; node = node->next) {
        if (begins_with(node->text, wanted) && copy_value(node->text, ":", destination))
            return 1;
    }
    return 0;
}
