#include "oa/media_parsing.h"

#include "attr/file_transfer.h"
#include "attr/message_session.h"
#include "attr/precondition.h"
#include "attr/rtcp_fb.h"
#include "oa/address.h"
#include "oa/bandwidth.hpp"
#include "oa/precondition_text.h"
#include "oa/result_code.h"
#include "oa/truncation.hpp"
#include "oa/words.hpp"
#include "sdp/attribute_lines.hpp"
#include "sdp/document.h"
#include "sdp/media_description.h"
#include "sdp/media_values.h"
#include "sdp/rtcp_address.h"
#include "util/fixed_text.hpp"
#include "util/number.hpp"

using namespace dak;

namespace {

constexpr size_t value_size = 256;

// Media types that a received line can have; data and control are the caller's alone.
bool can_be_read(uint32_t media_type)
{
    return media_type != SDP_MEDIA_DATA && media_type != SDP_MEDIA_CONTROL;
}

// The attributes of a section, looked up by names of three letters or more. Most names that are asked for are
// absent, and mostly so is any attribute that begins alike.
class attribute_finder {
public:
    explicit attribute_finder(const media_description &md) : md_(md)
    {
        for (const session_value *node = md.attributes; node != nullptr; node = node->next)
            beginnings_ |= beginning(node->text);
    }

    // The value is empty for an attribute without a colon.
    bool find(text_range name, char (&value)[value_size]) const
    {
        if ((beginnings_ & beginning(name.first)) == 0)
            return false;
        value[0] = '\0';
        return find_attribute(md_, name, value);
    }

    // The first word of a table that begins an attribute, or null.
    template <typename Word, size_t N> const Word *find(const Word (&words)[N]) const
    {
        char value[value_size];
        for (const Word &candidate : words) {
            if (find(candidate.text, value))
                return &candidate;
        }
        return nullptr;
    }

private:
    // One of 64 bits for the first three letters of a text; no bit for a shorter one.
    static uint64_t beginning(const char *text)
    {
        if (text[0] == '\0' || text[1] == '\0' || text[2] == '\0')
            return 0;
        return uint64_t{1} << ((text[0] + 5 * text[1] + 25 * text[2]) & 63);
    }

    const media_description &md_;
    uint64_t beginnings_ = 0;
};

void read_properties(const attribute_finder &attributes, sdp_media_line &mline)
{
    const word *direction = attributes.find(direction_words);
    mline.direction_present = direction != nullptr;
    if (direction != nullptr)
        mline.direction = direction->value;
    const word *setup = attributes.find(setup_words);
    mline.setup_present = setup != nullptr;
    if (setup != nullptr)
        mline.setup = setup->value;
}

// An attribute whose value is a number; `failure` is logged for one that is none, if there is a text.
struct number_attribute {
    fixed_text<10> name;
    uint8_t sdp_media_line::*is_present;
    uint16_t sdp_media_line::*value;
    const char *failure;
};
constexpr number_attribute number_attributes[] = {
    {"ptime", &sdp_media_line::ptime_present, &sdp_media_line::ptime, nullptr},
    {"maxptime", &sdp_media_line::maxptime_present, &sdp_media_line::maxptime,
     "dak_app_oa_parse_sdp:parsing maxprate failed                                              \n"},
    {"framerate", &sdp_media_line::framerate_present, &sdp_media_line::framerate, nullptr},
    {"maxprate", &sdp_media_line::maxprate_present, &sdp_media_line::maxprate, nullptr},
};

void read_numbers(const attribute_finder &attributes, sdp_media_line &mline)
{
    char value[value_size];
    for (const number_attribute &attribute : number_attributes) {
        uint32_t number = 0;
        if (!attributes.find(attribute.name, value))
            continue;
        mline.*attribute.is_present = static_cast<uint8_t>(read_lenient(value, number));
        if (mline.*attribute.is_present)
            mline.*attribute.value = static_cast<uint16_t>(number);
        else if (attribute.failure != nullptr)
            log_text(attribute.failure);
    }
}

uint32_t read_mid(const attribute_finder &attributes, sdp_media_line &mline)
{
    char value[value_size];
    if (!attributes.find("mid", value))
        return SDP_OA_SUCCESS;
    mline.mid_present = 1;
    if (copy_text(mline.mid, value))
        return SDP_OA_SUCCESS;
    return fail_as_too_long(sizeof mline.mid);
}

uint32_t read_feedback(const media_description *md, sdp_media_line &mline)
{
    const int count = dak_sdp_get_number_of_m_rtcp_fb_attrs(md);
    if (count > SDP_MAX_RTCP_FB) {
        DAK_LOG("Invalid RTCP fb list size \n");
        return SDP_OA_INVALID_CONTENT;
    }
    for (int i = 0; i < count; i++) {
        rtcp_fb_kind kind = {};
        if (dak_sdp_get_media_m_rtcp_fb_type(md, &kind, i) == nullptr) {
            DAK_LOG("Invalid RTCP fb attr\n");
            return SDP_OA_INVALID_CONTENT;
        }
        mline.rtcp_fb[i] = {kind.fb_type, kind.ccm_subtype, kind.nack_subtype, ""};
    }
    if (count > 0) {
        mline.rtcp_fb_present = 1;
        mline.num_rtcp_fb = static_cast<uint8_t>(count);
    }
    return SDP_OA_SUCCESS;
}

uint32_t read_precondition(const media_description *md, int index, sdp_precondition &entry)
{
    const char *value = get_media_precond_attr(md, &entry.kind, index);
    if (value != nullptr)
        return dak_app_oa_parse_pre_cond_str(value, &entry);
    DAK_LOG("dak_app_oa_parse_media_gen_attr :                           Invalid pre.cond attr\n");
    return SDP_OA_INVALID_CONTENT;
}

uint32_t read_preconditions(const media_description *md, sdp_media_line &mline)
{
    const int count = get_number_of_precond_attrs(md);
    if (count > SDP_MAX_PRECONDS) {
        DAK_LOG("dak_app_oa_parse_media_gen_attr :                           pcd list size overflow \n");
        return SDP_OA_TOO_LONG;
    }
    for (int i = 0; i < count; i++) {
        const uint32_t result = read_precondition(md, i, mline.preconds[i]);
        if (result != SDP_OA_SUCCESS)
            return result;
    }
    if (count > 0) {
        mline.num_preconds = static_cast<uint32_t>(count);
        mline.precond_present = 1;
    }
    return SDP_OA_SUCCESS;
}

void log_invalid_connection()
{
    DAK_LOG(
        "dak_app_oa_parse_mlines:Invalid media                                              connection\n");
}

// Reads what comes in front of the formats; on failure the flags that are cleared, and how often the line's
// text is logged, differ by the step that failed.
uint32_t read_line_attributes(media_description *md, sdp_media_line *mline)
{
    uint32_t result = dak_app_oa_parse_media_connection(md, mline);
    if (result != SDP_OA_SUCCESS) {
        mline->bandwidth.present = 0;
        mline->connection_present = 0;
        log_invalid_connection();
        log_invalid_connection();
        return result;
    }
    result = dak_app_oa_parse_media_bandwidth(md, mline);
    if (result != SDP_OA_SUCCESS) {
        mline->connection_present = 0;
        log_invalid_connection();
        return result;
    }
    return dak_app_oa_parse_media_gen_attr(md, mline);
}

void read_mline(media_description *md, sdp_media_line *mline)
{
    mline->valid = dak_app_oa_parse_media_line(md, mline) == SDP_OA_SUCCESS;
    if (!mline->valid)
        DAK_LOG("dak_app_oa_parse_mlines: Error in                                       media lines \n");
    else if (read_line_attributes(md, mline) != SDP_OA_SUCCESS)
        DAK_LOG("dak_app_oa_parse_mlines: Error in                                             media attr\n");
    else if (dak_app_oa_parse_formats(md, mline) != SDP_OA_SUCCESS)
        DAK_LOG(
            "dak_app_oa_parse_message_attr: Error in                                             message attr\n");
    else
        dak_app_oa_parse_message_attr(md, mline);
}

uint32_t allocate_mlines(sdp_container &container, int count)
{
    const size_t size = static_cast<size_t>(count) * sizeof(sdp_media_line);
    container.mlines = static_cast<sdp_media_line *>(dak_malloc(size));
    if (container.mlines == nullptr) {
        container.num_mlines = 0;
        DAK_LOG("dak_app_oa_parse_mlines: Media Malloc                                            failed\n");
        return SDP_OA_NO_MEMORY;
    }
    container.num_mlines = static_cast<uint16_t>(count);
    memset(container.mlines, 0, size);
    return SDP_OA_SUCCESS;
}

// Every file record is read along with the selectors; without a selector none is.
void read_file_records(const media_description *md, sdp_media_line &mline)
{
    mline.file_attr_present = 1;
    for (int i = 0; i < mline.num_file_selectors; i++)
        dak_sdp_get_message_file_selector_attrs(&mline.file_selectors[i], md, i);
    copy_text(mline.file_transfer_id, dak_sdp_get_message_file_transfer_id_attrs(md));
    dak_sdp_get_message_file_disposition_attrs(&mline.file_disposition, md);
    dak_sdp_get_message_file_date_attrs(&mline.file_date, md);
    copy_text(mline.file_icon, dak_sdp_get_message_file_icon_attrs(md));
    dak_sdp_get_message_file_range_attrs(&mline.file_range, md);
}

} // namespace

uint32_t dak_app_oa_parse_mlines(sdp_lib_context *document, sdp_container *container)
{
    if (document == nullptr || container == nullptr) {
        DAK_LOG("dak_app_oa_parse_mlines: Incorrect params\n");
        return SDP_OA_BAD_PARAMETERS;
    }
    const int count = get_number_of_media_description(document, SDP_PARSER_DOCUMENT);
    if (count > SDP_MAX_MLINES) {
        DAK_LOG("dak_app_oa_parse_mlines: Too many mlines - %d\n", count);
        return SDP_OA_INVALID_CONTENT;
    }
    if (count == 0)
        return SDP_OA_SUCCESS;
    const uint32_t result = allocate_mlines(*container, count);
    if (result != SDP_OA_SUCCESS)
        return result;
    for (int i = 0; i < count; i++) {
        media_description *md =
            get_media_description_by_index(document, SDP_PARSER_DOCUMENT, static_cast<uint32_t>(i));
        if (md == nullptr) {
            DAK_LOG(
                "dak_app_oa_parse_mlines: Invalid Media                                                     info\n");
            dak_free(container->mlines);
            container->num_mlines = 0; // the pointer is left; nothing follows it while the count is 0
            return SDP_OA_UNUSABLE;
        }
        read_mline(md, &container->mlines[i]);
    }
    return SDP_OA_SUCCESS;
}

uint32_t dak_app_oa_parse_media_line(media_description *md, sdp_media_line *mline)
{
    if (md == nullptr || mline == nullptr) {
        DAK_LOG(
            "dak_app_oa_parse_media_line: Incorrect                                                 params\n");
        return SDP_OA_BAD_PARAMETERS;
    }
    const word *media = find_word(media_words, text_range(get_media_type(md)));
    if (media == nullptr || !can_be_read(media->value)) {
        mline->media_type = SDP_MEDIA_UNKNOWN;
        return SDP_OA_INVALID_CONTENT;
    }
    mline->media_type = media->value;
    const word *transport = find_word(transport_words, text_range(get_transport_profile(md)));
    if (transport == nullptr)
        DAK_LOG("parse_media_line: Invalid Profile");
    mline->transport = transport != nullptr ? transport->value : uint32_t{SDP_TRANSPORT_UNKNOWN};
    mline->port = static_cast<uint16_t>(get_media_port(md));
    mline->rtcp_port = static_cast<uint16_t>(get_rtcp_port(md));
    get_rtcp_ipaddress(&mline->rtcp_address, md);
    mline->num_ports = static_cast<uint8_t>(get_number_of_media_port(md));
    return SDP_OA_SUCCESS;
}

uint32_t dak_app_oa_parse_media_connection(media_description *md, sdp_media_line *mline)
{
    if (md == nullptr || mline == nullptr) {
        DAK_LOG(
            "dak_app_oa_parse_media_connection: Incorrect                                                   params\n");
        return SDP_OA_BAD_PARAMETERS;
    }
    const char *value = get_media_description_value_by_index(md, 0, "c=");
    mline->connection_present = value != nullptr;
    if (value == nullptr)
        return SDP_OA_SUCCESS;
    char copy[value_size];
    copy_text(copy, value);
    return dak_app_oa_parse_address(copy, &mline->connection);
}

uint32_t dak_app_oa_parse_media_bandwidth(media_description *md, sdp_media_line *mline)
{
    if (md == nullptr || mline == nullptr) {
        DAK_LOG(
            "dak_app_oa_parse_media_bandwidth: Incorrect                                                   params\n");
        return SDP_OA_BAD_PARAMETERS;
    }
    static constexpr bandwidth_reader reader = {
        "dak_app_oa_parse_media_bandwidth: No BW Info\n",
        "dak_app_oa_parse_media_bandwidth: No BW Info:  \t\t\t\t\t\t %lu\n", SDP_OA_SUCCESS};
    return parse_bandwidth(mline->bandwidth, reader,
                           [md](int k) { return get_media_description_value_by_index(md, k, "b="); });
}

uint32_t dak_app_oa_parse_media_gen_attr(media_description *md, sdp_media_line *mline)
{
    if (md == nullptr || mline == nullptr) {
        DAK_LOG(
            "dak_app_oa_parse_media_gen_attr: Incorrect                                                     params\n");
        return SDP_OA_BAD_PARAMETERS;
    }
    const attribute_finder attributes(*md);
    read_properties(attributes, *mline);
    read_numbers(attributes, *mline);
    uint32_t result = read_mid(attributes, *mline);
    if (result == SDP_OA_SUCCESS)
        result = read_feedback(md, *mline);
    if (result == SDP_OA_SUCCESS)
        result = read_preconditions(md, *mline);
    return result;
}

uint32_t dak_app_oa_parse_message_attr(media_description *md, sdp_media_line *mline)
{
    if (md == nullptr || mline == nullptr)
        return SDP_OA_SUCCESS;
    dak_sdp_get_message_accept_attrs(&mline->accept_types, md);
    dak_sdp_get_message_accept_wrapped_attrs(&mline->accept_wrapped_types, md);
    dak_sdp_get_message_path_attrs(&mline->path, md);
    dak_sdp_get_message_max_size_attrs(&mline->max_size, md);
    const int32_t selectors = dak_sdp_get_message_num_of_file_selectors_attrs(md);
    mline->num_file_selectors = selectors < SDP_MAX_FILE_SELECTORS ? selectors : SDP_MAX_FILE_SELECTORS;
    mline->file_attr_present = 0;
    if (mline->num_file_selectors >= 1)
        read_file_records(md, *mline);
    mline->msg_attr_present = 1;
    return SDP_OA_SUCCESS;
}

uint32_t dak_app_oa_parse_rtcp_fb_subtype(const char *subtype, sdp_rtcp_fb *entry)
{
    constexpr uint32_t other_subtype = 5;
    if (subtype == nullptr || entry == nullptr) {
        DAK_LOG(" invalid params \n");
        return SDP_OA_BAD_PARAMETERS;
    }
    if (entry->fb_type != RTCP_FB_NACK)
        DAK_LOG(" Unsupported fb type \n");
    else
        entry->nack_subtype = *subtype == '\0' ? uint32_t{RTCP_FB_NACK_PLAIN} : other_subtype;
    return SDP_OA_SUCCESS;
}
