#include "print_format.hpp"

#include "record_text.hpp"
#include "words.hpp"

#include <string>
#include <string_view>

namespace inspector {
namespace {

// The encoding parameter is the number of channels for audio and has no common meaning elsewhere.
std::string encoding_parameter_text(std::string_view media_type, std::uint32_t parameter)
{
    if (media_type == "audio")
        return ", " + std::to_string(parameter) + (parameter == 1 ? " channel" : " channels");
    return parameter == 1 ? "" : ", encoding parameter " + std::to_string(parameter);
}

std::string unmapped_text(const media_description &description, int index)
{
    const bool rtp = std::string_view(description.transport_profile).starts_with("RTP/");
    const std::string_view assigned =
        find_word(static_payloads, get_media_codec_payload_number_by_index(&description, index));
    return rtp && !assigned.empty() ? std::string(assigned) + " (static, RFC 3551)" : "no a=rtpmap line";
}

std::string format_text(const media_description &description, int index)
{
    const char *name = get_media_codec_mime_type_by_index(&description, index);
    if (name == nullptr)
        return unmapped_text(description, index);
    return (name[0] != '\0' ? std::string(name) : "name lost with its a=fmtp line") + ", " +
           std::to_string(get_media_codec_sample_rate_by_index(&description, index)) + " Hz" +
           encoding_parameter_text(description.media_type,
                                   get_media_code_encoding_param_by_index(&description, index));
}

void print_parameters(outline &out, media_description &description, int index)
{
    std::uint32_t mime_index = 0;
    const media_codec &codec = description.codecs[index];
    if (!dak_sdp_get_mime_val(codec.mime_type, &mime_index))
        return;
    for (const char *name : codec.info.param_name) {
        const char *value = name[0] != '\0' ? get_media_value(&description, index, name) : nullptr;
        if (value != nullptr)
            out.detail(name, value);
    }
}

} // namespace

void print_format(outline &out, media_description &description, int index)
{
    out.row("format " + std::to_string(get_media_codec_payload_number_by_index(&description, index)),
            format_text(description, index));
    print_parameters(out, description, index);
    for (const rtcp_fb_entry &entry : feedback_entries(description.codecs[index].rtcp_fb))
        out.detail("feedback", feedback_text(entry));
}

} // namespace inspector
