#include "sdp/encoder.h"

#include "attr/file_transfer.h"
#include "attr/message_session.h"
#include "attr/precondition.h"
#include "attr/rtcp_fb.h"
#include "codec/parameters.hpp"
#include "sdp/attribute_lines.h"
#include "sdp/codec_access.hpp"
#include "sdp/document.h"
#include "sdp/document.hpp"
#include "sdp/media_values.h"
#include "sdp/text_buffer.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

constexpr uint16_t first_dynamic_payload = 96;

int encode_slot(sdp_lib_context *context, const sdp_info_container &document, int slot)
{
    const text_range tag = short_field_text(document.type_tags[slot]);
    if (!append_sdp_line(context->text_buffer, tag, field_text(document.values[slot])))
        return 0;
    for (const session_value *node = document.extra_values[slot]; node != nullptr; node = node->next) {
        if (!append_sdp_line(context->text_buffer, tag, field_text(node->text)))
            return 0;
    }
    return 1;
}

int encode_rtpmap(sdp_lib_context *context, uint16_t payload_number, text_range name, uint32_t sample_rate)
{
    sdp_line line(context);
    line.add("a=rtpmap:").add_number(payload_number).add(' ').add(name).add('/');
    line.add_signed(static_cast<int32_t>(sample_rate)).add("\r\n");
    if (line.is_too_long()) {
        DAK_LOG("len of str printed exceeded dst str len%d \n", 200);
        return fail();
    }
    return line.write() ? 1 : fail();
}

int encode_fmtp(sdp_lib_context *context, uint16_t payload_number, text_range name, media_codec &codec)
{
    const codec_kind *kind = find_kind(name);
    return kind == nullptr || write_fmtp_line(context, payload_number, codec, *kind) ? 1 : fail();
}

bool is_writable(text_range name) { return !name.empty() && !name.equals("NULL"); }

int encode_payloads(sdp_lib_context *context, media_description *description)
{
    for (int i = 0; i < payload_count(*description); i++) {
        if (!dak_sdp_encode_media_codec(context, description, i))
            return 0;
    }
    return 1;
}

bool has_types(const sdp_accept_attr &record)
{
    return static_cast<uint8_t>(record.present) != 0 && static_cast<uint16_t>(record.count) != 0;
}

// A family without a record is passed over; its writer would refuse it.
int encode_preconditions(sdp_lib_context *context, media_description *description)
{
    return description->pcd_count == 0 || encode_precondition_attr(context, description);
}

int encode_feedback(sdp_lib_context *context, media_description *description)
{
    return description->rtcp_fb.fb_count == 0 || dak_sdp_encode_rtcp_fb_attr(context, description);
}

int encode_accept_types(sdp_lib_context *context, media_description *description)
{
    return !has_types(description->accept_types) || dak_sdp_encode_accept_attr(context, description);
}

int encode_accept_wrapped_types(sdp_lib_context *context, media_description *description)
{
    return !has_types(description->accept_wrapped_types) ||
           dak_sdp_encode_accept_wrapped_attr(context, description);
}

int encode_path(sdp_lib_context *context, media_description *description)
{
    return description->path.present == 0 || dak_sdp_encode_path_attr(context, description);
}

int encode_max_size(sdp_lib_context *context, media_description *description)
{
    return static_cast<uint8_t>(description->max_size.present) == 0 ||
           dak_sdp_encode_max_size_attr(context, description);
}

int encode_file_selectors(sdp_lib_context *context, media_description *description)
{
    for (int i = 0; i < description->num_file_selectors && i < SDP_MAX_FILE_SELECTORS; i++) {
        if (!dak_sdp_encode_file_selector_attr(context, description, i))
            return 0;
    }
    return 1;
}

int encode_file_transfer_id(sdp_lib_context *context, media_description *description)
{
    return description->file_transfer_id[0] == '\0' ||
           dak_sdp_encode_file_transfer_id_attr(context, description);
}

int encode_file_icon(sdp_lib_context *context, media_description *description)
{
    return description->file_icon[0] == '\0' || dak_sdp_encode_file_icon_attr(context, description);
}

int encode_file_range(sdp_lib_context *context, media_description *description)
{
    const sdp_file_range &range = description->file_range;
    return range.start < 0 || range.stop < 1 || dak_sdp_encode_file_range_attr(context, description);
}

// The lines of a media section, in the order in which they are written.
constexpr int (*section_writers[])(sdp_lib_context *, media_description *) = {
    dak_sdp_encode_m_equal,
    dak_sdp_encode_media_fields,
    encode_payloads,
    encode_preconditions,
    encode_feedback,
    encode_accept_types,
    encode_accept_wrapped_types,
    encode_path,
    encode_max_size,
    encode_file_selectors,
    encode_file_transfer_id,
    dak_sdp_encode_file_disposition_attr,
    dak_sdp_encode_file_date_attr,
    encode_file_icon,
    encode_file_range,
    dak_encode_media_attribute,
};

} // namespace

int dak_sdp_encode(sdp_lib_context *context)
{
    return dak_sdp_encode_session(context) && dak_sdp_encode_media_descriptions(context) ? 1 : fail();
}

int dak_sdp_encode_session(sdp_lib_context *context)
{
    const sdp_info_container *document = selected_document(context, SDP_ENCODER_DOCUMENT);
    if (document == nullptr)
        return 0;
    for (int slot = 0; slot < get_total_session_number_tag(); slot++) {
        if (document->value_present[slot] == 1 && !encode_slot(context, *document, slot))
            return fail();
    }
    return 1;
}

int dak_sdp_encode_media_descriptions(sdp_lib_context *context)
{
    if (context == nullptr)
        return fail();
    int count = get_number_of_media_description(context, SDP_ENCODER_DOCUMENT);
    if (count > SDP_MAX_MEDIA_DESCRIPTIONS) {
        DAK_LOG("Cap num of media %d \n", count);
        count = SDP_MAX_MEDIA_DESCRIPTIONS;
    }
    for (int i = 0; i < count; i++) {
        if (!dak_sdp_encode_media_description_by_index(context, i))
            return fail();
    }
    return 1;
}

int dak_sdp_encode_media_description_by_index(sdp_lib_context *context, int index)
{
    if (context == nullptr)
        return 0;
    media_description *description =
        get_media_description_by_index(context, SDP_ENCODER_DOCUMENT, static_cast<uint32_t>(index));
    if (description == nullptr)
        return 0;
    for (const auto write : section_writers) {
        if (!write(context, description))
            return fail();
    }
    return 1;
}

int dak_sdp_encode_m_equal(sdp_lib_context *context, media_description *description)
{
    if (context == nullptr || description == nullptr || description->number_of_media_port == 0)
        return fail();
    const text_range profile = field_text(description->transport_profile);
    sdp_line line(context);
    line.add("m=").add(field_text(description->media_type)).add(' ');
    line.add_signed(static_cast<int32_t>(description->media_port));
    if (description->number_of_media_port >= 2)
        line.add('/').add_signed(static_cast<int32_t>(description->number_of_media_port));
    line.add(' ').add(profile);
    for (int i = 0; i < payload_count(*description); i++)
        line.add(' ').add_signed(description->payload_numbers[i]);
    if (profile.equals("TCP/MSRP"))
        line.add(" *");
    line.add("\r\n");
    if (line.is_too_long()) {
        DAK_LOG("src str len exceeds dest str len %d\n", 200);
        return fail();
    }
    return line.write() ? 1 : fail();
}

int dak_sdp_encode_media_codec(sdp_lib_context *context, media_description *description, int index)
{
    if (context == nullptr || description == nullptr)
        return fail();
    media_codec *codec = codec_at(description, index);
    if (codec == nullptr)
        return 1; // reported; a number without a codec stands in the m= line alone
    const auto payload_number = static_cast<uint16_t>(description->payload_numbers[index]);
    if (codec->rtpmap_valid == 1) {
        const text_range name = field_text(codec->mime_type);
        if (!is_writable(name))
            return 1;
        if (!encode_rtpmap(context, payload_number, name, codec->sample_rate) ||
            !encode_fmtp(context, payload_number, name, *codec))
            return 0;
    }
    if (payload_number >= first_dynamic_payload && codec->rtpmap_valid == 0)
        return 1;
    return codec->rtcp_fb.fb_present != 1 || dak_sdp_encode_rtcp_fb_attr_at_pt(context, description, index);
}
