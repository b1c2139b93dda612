#include "oa/session_parsing.h"

#include "oa/address.h"
#include "oa/bandwidth.hpp"
#include "oa/result_code.h"
#include "oa/truncation.hpp"
#include "oa/words.hpp"
#include "sdp/document.hpp"
#include "sdp/session_values.h"
#include "sdp/session_values.hpp"
#include "util/heap_text.hpp"
#include "util/number.h"

using namespace dak;

namespace {

constexpr size_t text_size = 256;

bool are_given(const sdp_lib_context *document, const sdp_container *container, const char *null_text)
{
    if (document != nullptr && container != nullptr)
        return true;
    log_text(null_text);
    return false;
}

// Fills a heap copy of a value; `no_memory` is logged when there is none.
uint32_t copy_value(heap_text &copy, const char *value, const char *no_memory)
{
    if (!copy.is_allocated()) {
        log_text(no_memory);
        return SDP_OA_NO_MEMORY;
    }
    if (copy.writer().add(value).fits())
        return SDP_OA_SUCCESS;
    DAK_LOG("src str len exceeded dst str len %lu \n", static_cast<unsigned long>(copy.size()));
    dak_assert_failed();
    return SDP_OA_TOO_LONG;
}

uint32_t log_missing(const char *text)
{
    log_text(text);
    return SDP_OA_MISSING_TOKEN;
}

// Reads a session id or version; `missing` is logged without one.
uint32_t read_number(text_range word, const char *missing, uint64_t &number)
{
    int64_t value = 0;
    if (word.empty())
        return log_missing(missing);
    if (!dak_atoi64(word.first, static_cast<uint32_t>(word.length()), &value))
        return SDP_OA_NO_RTPMAP;
    number = static_cast<uint64_t>(value);
    return SDP_OA_SUCCESS;
}

uint32_t read_username(text_range word, sdp_container &container)
{
    if (word.empty())
        return log_missing("dak_app_oa_parse_origin:No Origin info\n");
    if (copy_text(container.origin_username, word))
        return SDP_OA_SUCCESS;
    return fail_as_truncated(sizeof container.origin_username);
}

uint32_t read_origin(char *text, sdp_container &container)
{
    text_range rest(text);
    uint32_t result = read_username(rest.take_word(), container);
    if (result == SDP_OA_SUCCESS)
        result = read_number(rest.take_word(), "dak_app_oa_parse_origin:No Session ID info\n",
                             container.origin_session_id);
    if (result == SDP_OA_SUCCESS)
        result = read_number(
            rest.take_word(),
            "dak_app_oa_parse_origin:No Session version                                          info\n",
            container.origin_session_version);
    if (result != SDP_OA_SUCCESS)
        return result;
    char *address = text + (rest.first - text);
    return dak_app_oa_parse_address(address, &container.origin_address);
}

// Copies the text of an s= or i= line, if there is one.
uint32_t read_text(const char *value, uint8_t &is_present, char (&field)[text_size])
{
    if (value == nullptr)
        return SDP_OA_SUCCESS;
    is_present = 1;
    if (copy_text(field, value))
        return SDP_OA_SUCCESS;
    return fail_as_too_long(text_size);
}

uint32_t read_times(const char *value, sdp_container &container)
{
    text_range rest(value);
    if (rest.length() >= text_size)
        return fail_as_too_long(text_size);
    if (!scan_unsigned(rest, container.start_time)) {
        DAK_LOG("dak_app_oa_parse_time: Invalid Start Time                               Info: %lu\n",
                static_cast<unsigned long>(container.start_time));
        return SDP_OA_INVALID_CONTENT;
    }
    if (rest.take_word().empty())
        return log_missing("dak_app_oa_parse_time: No Start Time Info\n");
    const text_range stop = rest.take_word();
    if (stop.empty())
        return log_missing("dak_app_oa_parse_time: No Stop time Info\n");
    if (!scan_unsigned(stop, container.stop_time)) {
        DAK_LOG("dak_app_oa_parse_time: Invalid Stop Time                                 Info: %lu\n",
                static_cast<unsigned long>(container.stop_time));
        return SDP_OA_INVALID_CONTENT;
    }
    container.time_present = 1;
    return SDP_OA_SUCCESS;
}

void read_direction(sdp_lib_context *document, sdp_container &container)
{
    container.direction_present = 0;
    if (get_session_value(document, attribute_slot) == nullptr)
        return;
    char value[text_size] = "";
    for (const word &direction : direction_words) {
        if (!get_session_attribute_value(document, SDP_PARSER_DOCUMENT, direction.text.c_str(), value))
            continue;
        container.direction_present = 1;
        container.direction = direction.value;
        return;
    }
}

// The groups of one body on their way into a container.
class group_reader {
public:
    explicit group_reader(sdp_container &container) : container_(container) {}

    // Reads one session attribute, which need not be a group.
    uint32_t read(text_range attribute)
    {
        if (!attribute.take_token(":").equals("group"))
            return SDP_OA_SUCCESS;
        const word *semantics = find_word(semantics_words, attribute.take_word());
        if (semantics == nullptr) {
            if (sdp_group *group = next_group(); group != nullptr)
                group->semantics = SDP_GROUP_UNKNOWN;
            return SDP_OA_SUCCESS;
        }
        sdp_group *group = next_group();
        if (container_.num_groups > SDP_MAX_GROUPS || group == nullptr) {
            DAK_LOG("parse_group_attr:Invalid number of groups %d\n",
                    static_cast<int>(container_.num_groups));
            return SDP_OA_INVALID_CONTENT;
        }
        group->semantics = semantics->value;
        read_mids(*group, attribute);
        group->present = !has_failed_;
        return SDP_OA_SUCCESS;
    }

private:
    // Counts a group; its entry, or null for one that has no room.
    sdp_group *next_group()
    {
        const uint8_t index = container_.num_groups;
        if (container_.num_groups < UINT8_MAX)
            container_.num_groups++;
        if (index >= SDP_MAX_GROUPS)
            return nullptr;
        container_.groups[index] = {};
        return &container_.groups[index];
    }

    // Reads media identifications up to the first that no media line has.
    void read_mids(sdp_group &group, text_range rest)
    {
        for (text_range mid = rest.take_word(); !mid.empty(); mid = rest.take_word()) {
            const int index = find_mid(mid);
            if (index < 0 || group.num_mids >= SDP_MAX_GROUP_MIDS) {
                has_failed_ = true;
                return;
            }
            group.mline_index[group.num_mids++] = static_cast<uint8_t>(index);
        }
    }

    int find_mid(text_range mid) const
    {
        for (int i = 0; container_.mlines != nullptr && i < container_.num_mlines; i++) {
            const sdp_media_line &mline = container_.mlines[i];
            if (mline.mid_present == 1 && mid.equals(field_text(mline.mid)))
                return i;
        }
        return -1;
    }

    sdp_container &container_;
    bool has_failed_ = false; // for the whole body: no later group is marked present either
};

} // namespace

uint32_t dak_app_oa_parse_version(sdp_lib_context *document, sdp_container *container)
{
    if (!are_given(document, container, "dak_app_oa_parse_version: Incorrect params\n"))
        return SDP_OA_BAD_PARAMETERS;
    const char *value = get_session_value(document, version_slot);
    if (value == nullptr) {
        DAK_LOG("dak_app_oa_parse_version: Invalid                                     version info\n");
        return SDP_OA_UNUSABLE;
    }
    if (!scan_unsigned(value, container->version)) {
        DAK_LOG("dak_app_oa_parse_version: Invalid                                       version info\n");
        return SDP_OA_UNUSABLE;
    }
    return SDP_OA_SUCCESS;
}

uint32_t dak_app_oa_parse_origin(sdp_lib_context *document, sdp_container *container)
{
    if (!are_given(document, container, "dak_app_oa_parse_origin: Incorrect params\n"))
        return SDP_OA_BAD_PARAMETERS;
    container->origin_address.addr_type = SDP_ADDR_NOT_SET;
    const char *value = get_session_value(document, origin_slot);
    if (value == nullptr) {
        DAK_LOG("dak_app_oa_parse_origin:No Origin info\n");
        return SDP_OA_BAD_PARAMETERS;
    }
    container->origin_present = 1;
    heap_text copy(strlen(value) + 1);
    const uint32_t result = copy_value(copy, value, "dak_app_oa_parse_origin:Malloc failed \n");
    return result == SDP_OA_SUCCESS ? read_origin(copy.c_str(), *container) : result;
}

uint32_t dak_app_oa_parse_session(sdp_lib_context *document, sdp_container *container)
{
    if (!are_given(document, container, "dak_app_oa_parse_session: Incorrect params\n"))
        return SDP_OA_BAD_PARAMETERS;
    return read_text(get_session_value(document, name_slot), container->session_name_present,
                     container->session_name);
}

uint32_t dak_app_oa_parse_sess_info(sdp_lib_context *document, sdp_container *container)
{
    if (!are_given(document, container, "dak_app_oa_parse_sess_info: Incorrect params\n"))
        return SDP_OA_BAD_PARAMETERS;
    return read_text(get_session_value(document, information_slot), container->info_present, container->info);
}

uint32_t dak_app_oa_parse_connection(sdp_lib_context *document, sdp_container *container)
{
    if (!are_given(document, container, "dak_app_oa_parse_connection: No Conn Info\n"))
        return SDP_OA_BAD_PARAMETERS;
    const char *value = get_session_value(document, connection_slot);
    if (value == nullptr)
        return SDP_OA_SUCCESS;
    container->connection_present = 1;
    heap_text copy(strlen(value) + 1);
    const uint32_t result = copy_value(copy, value, "dak_app_oa_parse_connection:Malloc failed\n");
    return result == SDP_OA_SUCCESS ? dak_app_oa_parse_address(copy.c_str(), &container->connection) : result;
}

uint32_t dak_app_oa_parse_bandwidth(sdp_lib_context *document, sdp_container *container)
{
    if (!are_given(document, container,
                   "dak_app_oa_parse_bandwidth:                                          Incorrect params\n"))
        return SDP_OA_BAD_PARAMETERS;
    static constexpr bandwidth_reader reader = {"dak_app_oa_parse_bandwidth: No BW Info\n",
                                                "dak_app_oa_parse_bandwidth: Invalid BW Info:        %lu\n",
                                                SDP_OA_INVALID_CONTENT};
    return parse_bandwidth(container->bandwidth, reader,
                           [document](int k) { return get_session_value(document, bandwidth_slot, k); });
}

uint32_t dak_app_oa_parse_time(sdp_lib_context *document, sdp_container *container)
{
    if (!are_given(document, container, "dak_app_oa_parse_time: Incorrect params\n"))
        return SDP_OA_BAD_PARAMETERS;
    const char *value = get_session_value(document, time_slot);
    if (value == nullptr) {
        DAK_LOG("dak_app_oa_parse_time: No time info\n");
        return SDP_OA_BAD_PARAMETERS;
    }
    return read_times(value, *container);
}

uint32_t dak_app_oa_parse_gen_attr(sdp_lib_context *document, sdp_container *container)
{
    if (!are_given(document, container, "dak_app_oa_parse_gen_attr: Incorrect params\n"))
        return SDP_OA_BAD_PARAMETERS;
    read_direction(document, *container);
    return dak_app_oa_parse_group_attr(document, container);
}

uint32_t dak_app_oa_parse_group_attr(sdp_lib_context *document, sdp_container *container)
{
    if (!are_given(document, container, "dak_app_oa_parse_group_attr: invalid i/p args \n"))
        return SDP_OA_BAD_PARAMETERS;
    const char *first = get_session_value(document, attribute_slot);
    if (first == nullptr)
        return SDP_OA_SUCCESS;
    group_reader reader(*container);
    uint32_t result = reader.read(first);
    // The lines are walked, not asked for by position: a hostile body has thousands of them.
    const session_value *node = document->parser_document->extra_values[attribute_slot];
    for (; node != nullptr && result == SDP_OA_SUCCESS; node = node->next)
        result = reader.read(node->text);
    return result;
}
