// Writing a=rtcp-fb lines.

#include "attr/rtcp_fb.h"

#include "attr/attribute_line.hpp"
#include "sdp/codec_access.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

// The words of an entry, or null for a subtype without any. Receivers in the field take "cmm", so that is
// what is written, although the reader takes the "ccm" of RFC 5104.
const char *feedback_words(const rtcp_fb_entry &entry)
{
    static constexpr const char *nack[] = {" nack", " nack pli"};
    static constexpr const char *ccm[] = {" cmm fir", " cmm tmmbr"};
    const bool is_nack = entry.fb_type == RTCP_FB_NACK;
    const uint32_t subtype = is_nack ? entry.nack_subtype : entry.ccm_subtype;
    if (subtype > 1)
        return nullptr;
    return is_nack ? nack[subtype] : ccm[subtype];
}

bool is_writable(const rtcp_fb_entry &entry)
{
    return (entry.fb_type == RTCP_FB_NACK || entry.fb_type == RTCP_FB_CCM) && entry.fb_param[0] == '\0';
}

// Writes a list under the number or the "*" that `payload` holds.
int encode_list(sdp_lib_context *context, const rtcp_fb_list &list, text_range payload)
{
    if (list.fb_present != 1 || list.fb_count > RTCP_FB_MAX_ENTRIES) {
        DAK_LOG(" Invalid fb params \n");
        return 0;
    }
    const char *words = nullptr; // a subtype without words repeats the line before it
    for (uint32_t i = 0; i < list.fb_count; i++) {
        const rtcp_fb_entry &entry = list.fb_entries[i];
        if (!is_writable(entry)) {
            DAK_LOG(" Unsupported fb attributes \n");
            return 0;
        }
        if (const char *own = feedback_words(entry); own != nullptr)
            words = own;
        sdp_line line(context);
        if (words != nullptr)
            line.add("a=rtcp-fb:").add(payload).add(words);
        if (!write_attribute_line(line))
            return 0;
    }
    return 1;
}

} // namespace

int dak_sdp_encode_rtcp_fb_attr(sdp_lib_context *context, media_description *description)
{
    if (!has_write_arguments(context, description))
        return 0;
    return encode_list(context, description->rtcp_fb, "*");
}

int dak_sdp_encode_rtcp_fb_attr_at_pt(sdp_lib_context *context, media_description *description, int index)
{
    if (!has_write_arguments(context, description))
        return 0;
    const media_codec *codec = codec_at(description, index);
    if (codec == nullptr)
        return 0;
    const auto payload_number = static_cast<uint16_t>(description->payload_numbers[index]);
    return encode_list(context, codec->rtcp_fb, built_text<8>().add_number(payload_number).text());
}
