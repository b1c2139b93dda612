#include "oa/session_generation.h"

#include "attr/content_type.hpp"
#include "oa/address.hpp"
#include "oa/bandwidth.hpp"
#include "oa/result_code.h"
#include "oa/truncation.hpp"
#include "oa/words.hpp"
#include "sdp/session_values.hpp"
#include "util/heap_text.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

constexpr size_t origin_size = 566;
constexpr uint32_t number_size = 20;
constexpr size_t time_size = 44;
constexpr size_t attribute_size = 256;
using attribute_text = built_text<attribute_size>;

// Checks a builder's arguments, with its log text.
bool are_given(const sdp_lib_context *document, const sdp_container *container, const char *null_text)
{
    if (document != nullptr && container != nullptr)
        return true;
    log_text(null_text);
    return false;
}

uint32_t store(sdp_lib_context *document, session_slot slot, text_range value, const char *refused)
{
    if (set_session_value(document, slot, value))
        return SDP_OA_SUCCESS;
    log_text(refused);
    return SDP_OA_INVALID_CONTENT;
}

// Appends a number and a blank; `insufficient` is logged with the room for the number when it takes more.
uint32_t add_number(text_writer &line, uint64_t number, const char *insufficient)
{
    const size_t start = line.length();
    if (line.add_signed(static_cast<int64_t>(number)).length() - start >= number_size) {
        DAK_LOG(insufficient, static_cast<int>(number_size));
        return SDP_OA_TOO_LONG;
    }
    line.add(' ');
    return SDP_OA_SUCCESS;
}

uint32_t build_origin(text_writer &line, const sdp_container &container)
{
    const text_range username = field_text(container.origin_username);
    if (username.length() >= origin_size) {
        DAK_LOG("dak_app_oa_encode_origin:User name larger                        than alloc: %s\n",
                container.origin_username);
        return SDP_OA_TOO_LONG;
    }
    line.add(username).add(' ');
    uint32_t result = add_number(
        line, container.origin_session_id,
        "dak_app_oa_encode_origin:Insufficient                            length to fit Session Id: %d \n");
    if (result == SDP_OA_SUCCESS)
        result = add_number(
            line, container.origin_session_version,
            "dak_app_oa_encode_origin:Insufficient                            length to fit Session version: %d\n");
    if (result != SDP_OA_SUCCESS)
        return result;
    result = add_address(line, container.origin_address);
    if (result != SDP_OA_SUCCESS)
        DAK_LOG("dak_app_oa_encode_origin: Invalid address type:                           %d\n",
                static_cast<int>(container.origin_address.addr_type));
    return result;
}

// What the builders of the s= and i= lines log.
struct text_builder {
    session_slot slot;
    const char *no_memory;
    const char *refused;
};

// Named: for unnamed ones, some compilers keep templates that can be written to.
constexpr text_builder name_builder = {
    name_slot, "dak_app_oa_encode_session:Malloc failed\n",
    "dak_app_oa_encode_session:                                     Invalid session tag\n"};
constexpr text_builder info_builder = {
    information_slot, "dak_app_oa_encode_info:Malloc failed \n",
    "dak_app_oa_encode_info:Invalid SDP context                                              value\n"};

uint32_t encode_text(sdp_lib_context *document, text_range value, const text_builder &builder)
{
    heap_text text(value.length() + 2);
    if (!text.is_allocated()) {
        log_text(builder.no_memory);
        return SDP_OA_NO_MEMORY;
    }
    if (!text.writer().add(value).fits())
        return fail_as_truncated(text.size());
    return store(document, builder.slot, text.writer().text(), builder.refused);
}

uint32_t encode_direction(sdp_lib_context *document, const sdp_container &container, bool &is_refused)
{
    const word *direction = find_word(direction_words, container.direction);
    if (direction == nullptr) {
        DAK_LOG("dak_app_oa_encode_gen_attr:Invalid                            dir.attr: %d\n",
                static_cast<int>(container.direction));
        return SDP_OA_INVALID_CONTENT;
    }
    is_refused = store(document, attribute_slot, direction->text,
                       "dak_app_oa_encode_gen_attr:                              Invalid attr tag\n") !=
                 SDP_OA_SUCCESS;
    return SDP_OA_SUCCESS;
}

// Whether every index of a group means a media line that is there.
bool names_media_lines(const sdp_container &container, const sdp_group &group)
{
    if (group.num_mids > SDP_MAX_GROUP_MIDS || (group.num_mids != 0 && container.mlines == nullptr))
        return false;
    for (int i = 0; i < group.num_mids; i++) {
        if (group.mline_index[i] >= container.num_mlines)
            return false;
    }
    return true;
}

uint32_t build_group(attribute_text &text, const sdp_container &container, const sdp_group &group)
{
    const word *semantics = find_word(semantics_words, group.semantics);
    if (semantics == nullptr) {
        DAK_LOG("encode_gen_attr:Invalid grp.sematics: %d\n", static_cast<int>(group.semantics));
        return SDP_OA_INVALID_CONTENT;
    }
    if (!names_media_lines(container, group)) {
        DAK_LOG("encode_gen_attr: Invalid attr tag\n");
        return SDP_OA_INVALID_CONTENT;
    }
    text.add("group:").add(semantics->text);
    for (int i = 0; i < group.num_mids; i++)
        text.add(' ').add(field_text(container.mlines[group.mline_index[i]].mid));
    if (text.fits())
        return SDP_OA_SUCCESS;
    return fail_as_truncated(attribute_size);
}

uint32_t encode_groups(sdp_lib_context *document, const sdp_container &container, bool &is_refused)
{
    if (container.num_groups > SDP_MAX_GROUPS) {
        DAK_LOG("encode_gen_attr:Invalid number of groups %d\n", static_cast<int>(container.num_groups));
        return SDP_OA_INVALID_CONTENT;
    }
    for (int i = 0; i < container.num_groups; i++) {
        if (container.groups[i].present != 1)
            continue;
        attribute_text text;
        const uint32_t result = build_group(text, container, container.groups[i]);
        if (result != SDP_OA_SUCCESS)
            return result;
        is_refused = store(document, attribute_slot, text.text(), "encode_gen_attr: Invalid attr tag\n") !=
                     SDP_OA_SUCCESS;
    }
    return SDP_OA_SUCCESS;
}

const sdp_media_line *first_message_line(const sdp_container &container)
{
    for (uint16_t i = 0; container.mlines != nullptr && i < container.num_mlines; i++) {
        if (container.mlines[i].media_type == SDP_MEDIA_MESSAGE)
            return &container.mlines[i];
    }
    return nullptr;
}

// Builds the attribute; its two failures log the session's direction, where log filters look for it.
uint32_t build_accept(attribute_text &text, const sdp_container &container, const sdp_accept_attr &accept)
{
    if (accept.kind == 0) {
        if (accept.types[0] > SDP_ACCEPT_IMDN) {
            DAK_LOG(
                "dak_app_oa_encode_message_attr:Invalid   \t\t\t\t\t\t\t\t\t\t\t\t\t\t accept-type.attr: %d\n",
                static_cast<int>(container.direction));
            return SDP_OA_INVALID_CONTENT;
        }
        text.add("accept-type:").add(content_types[accept.types[0]].read);
        return SDP_OA_SUCCESS;
    }
    if (accept.kind == 1) {
        text.add("accept-wrapped-types:");
        return SDP_OA_SUCCESS;
    }
    DAK_LOG("dak_app_oa_encode_message_attr:Invalid                            accept-type.attr: %d\n",
            static_cast<int>(container.direction));
    return SDP_OA_INVALID_CONTENT;
}

} // namespace

uint32_t dak_app_oa_encode_version(sdp_lib_context *document, const sdp_container *container)
{
    if (!are_given(document, container, "dak_app_oa_parse_sdp:Incorrect params\n"))
        return SDP_OA_BAD_PARAMETERS;
    if (container->version != 0) {
        DAK_LOG("dak_app_oa_encode_version: No version info\n");
        return SDP_OA_INVALID_CONTENT;
    }
    return store(
        document, version_slot, "0",
        "dak_app_oa_encode_version: Invalid version                                                       info\n");
}

uint32_t dak_app_oa_encode_origin(sdp_lib_context *document, const sdp_container *container)
{
    if (!are_given(document, container, "dak_app_oa_encode_origin: Incorrect params\n"))
        return SDP_OA_BAD_PARAMETERS;
    heap_text room(origin_size);
    if (!room.is_allocated()) {
        DAK_LOG(
            "dak_app_oa_encode_origin:Malloc failed                                                    \n");
        return SDP_OA_NO_MEMORY;
    }
    text_writer &line = room.writer();
    const uint32_t result = build_origin(line, *container);
    if (result != SDP_OA_SUCCESS)
        return result;
    if (!line.fits())
        return fail_as_truncated(origin_size);
    return store(
        document, origin_slot, line.text(),
        "dak_app_oa_encode_origin:Invalid origin                                                 info \n");
}

uint32_t dak_app_oa_encode_session(sdp_lib_context *document, const sdp_container *container)
{
    if (!are_given(document, container, "dak_app_oa_encode_session: Incorrect params\n"))
        return SDP_OA_BAD_PARAMETERS;
    if (container->session_name_present == 0)
        return store(document, name_slot, "-",
                     "dak_app_oa_encode_session:                              Invalid session tag\n");
    return encode_text(document, field_text(container->session_name), name_builder);
}

uint32_t dak_app_oa_encode_info(sdp_lib_context *document, const sdp_container *container)
{
    if (!are_given(document, container, "dak_app_oa_encode_info: Incorrect params\n"))
        return SDP_OA_BAD_PARAMETERS;
    if (container->info_present == 0)
        return SDP_OA_SUCCESS;
    return encode_text(document, field_text(container->info), info_builder);
}

uint32_t dak_app_oa_encode_bw(sdp_lib_context *document, const sdp_container *container)
{
    if (!are_given(document, container, "dak_app_oa_encode_bw: Incorrect params\n"))
        return SDP_OA_BAD_PARAMETERS;
    const auto store_line = [document](text_range text) {
        return set_session_value(document, bandwidth_slot, text);
    };
    // The session's log text names the first entry, whichever is wrong.
    return encode_bandwidth(container->bandwidth, store_line, [](int) { return 0; });
}

uint32_t dak_app_oa_encode_connection(sdp_lib_context *document, const sdp_container *container)
{
    if (!are_given(document, container, "dak_app_oa_encode_connection: Incorrect params\n"))
        return SDP_OA_BAD_PARAMETERS;
    if (container->connection_present == 0)
        return SDP_OA_SUCCESS;
    constexpr size_t types_size = sizeof "IN IP4 ";
    heap_text room(field_text(container->connection.address).length() + types_size);
    if (!room.is_allocated()) {
        DAK_LOG("dak_app_oa_encode_connection:Malloc failed\n");
        return SDP_OA_NO_MEMORY;
    }
    text_writer &text = room.writer();
    const uint32_t result = add_address(text, container->connection);
    if (result != SDP_OA_SUCCESS) {
        DAK_LOG(
            "dak_app_oa_encode_connection:Invalid address                                                  info\n");
        return result;
    }
    if (!text.fits())
        return fail_as_truncated(room.size());
    return store(
        document, connection_slot, text.text(),
        "dak_app_oa_encode_connection:Invalid connection                                                  info\n");
}

uint32_t dak_app_oa_encode_time(sdp_lib_context *document, const sdp_container *container)
{
    if (!are_given(document, container, "dak_app_oa_encode_time: Incorrect params\n"))
        return SDP_OA_BAD_PARAMETERS;
    if (container->time_present == 0)
        return SDP_OA_SUCCESS;
    char room[time_size];
    text_writer text(room);
    if (!text.add_number(container->start_time).add(' ').add_number(container->stop_time).fits())
        return fail_as_truncated(time_size);
    return store(document, time_slot, text.text(), "dak_app_oa_encode_time: Invalid time info\n");
}

uint32_t dak_app_oa_encode_gen_attr(sdp_lib_context *document, const sdp_container *container)
{
    if (!are_given(document, container, "dak_app_oa_encode_gen_attr: Incorrect params\n"))
        return SDP_OA_BAD_PARAMETERS;
    bool is_refused = false;
    uint32_t result = SDP_OA_SUCCESS;
    if (container->direction_present != 0)
        result = encode_direction(document, *container, is_refused);
    if (result == SDP_OA_SUCCESS)
        result = encode_groups(document, *container, is_refused);
    if (result != SDP_OA_SUCCESS)
        return result;
    return is_refused ? SDP_OA_INVALID_CONTENT : SDP_OA_SUCCESS;
}

uint32_t dak_app_oa_encode_message_attr(sdp_lib_context *document, const sdp_container *container)
{
    if (!are_given(document, container, "dak_app_oa_encode_message_attr: Incorrect params\n"))
        return SDP_OA_BAD_PARAMETERS;
    const sdp_media_line *mline = first_message_line(*container);
    if (mline == nullptr || mline->msg_attr_present == 0)
        return SDP_OA_SUCCESS;
    if (static_cast<uint8_t>(mline->accept_types.present) == 0) {
        DAK_LOG("len of str printed exceeded dst str len%d \n", static_cast<int>(attribute_size));
        return SDP_OA_TOO_LONG;
    }
    attribute_text text;
    const uint32_t result = build_accept(text, *container, mline->accept_types);
    if (result != SDP_OA_SUCCESS)
        return result;
    return store(document, attribute_slot, text.text(),
                 "dak_app_oa_encode_gen_attr:                            Invalid attr tag\n");
}
