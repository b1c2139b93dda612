#include "print_media_line.hpp"

#include "codec_parameters.hpp"
#include "container_text.hpp"
#include "format_state.hpp"
#include "print_message.hpp"
#include "record_text.hpp"
#include "words.hpp"

#include <algorithm>
#include <string>

namespace inspector {
namespace {

void print_heading(outline &out, int number, const sdp_media_line &mline)
{
    const std::string_view transport = find_word(transports, mline.transport);
    out.heading("Media " + std::to_string(number) + ": " +
                std::string(find_word(media_types, mline.media_type)) + ", " +
                port_text(mline.port, mline.num_ports) + ", " +
                (mline.transport == SDP_TRANSPORT_UNKNOWN ? "unknown transport" : std::string(transport)));
}

void print_addresses(outline &out, const sdp_media_line &mline)
{
    const std::string rtcp_address = rtcp_address_text(mline.rtcp_address);
    if (mline.rtcp_port != 0)
        out.row("RTCP", "port " + std::to_string(mline.rtcp_port) +
                            (rtcp_address.empty() ? "" : ", " + rtcp_address));
    if (mline.connection_present != 0)
        out.row("connection", address_text(mline.connection));
}

// The channels of other media than audio are told only when there are several.
std::string codec_text(const sdp_media_line &mline, const sdp_payload_format &format)
{
    std::string text(codec_name(format));
    text += (text.empty() ? "" : ", ") + std::to_string(format.clock_rate_khz) + " kHz";
    if (mline.media_type == SDP_MEDIA_AUDIO || format.num_channels != 1)
        text += ", " + std::to_string(format.num_channels) +
                (format.num_channels == 1 ? " channel" : " channels");
    return text;
}

std::string unmapped_text(const sdp_media_line &mline, std::uint32_t number)
{
    const bool rtp = mline.transport == SDP_RTP_AVP || mline.transport == SDP_RTP_AVPF;
    const std::string_view assigned = rtp ? find_word(static_payloads, number) : std::string_view();
    return assigned.empty() ? "no a=rtpmap line"
                            : "no a=rtpmap line; " + std::string(assigned) + " by RFC 3551";
}

std::string format_text(const sdp_media_line &mline, int index)
{
    const sdp_payload_format &format = mline.formats[index];
    switch (state_of(mline, index)) {
    case format_state::described:
        return codec_text(mline, format);
    case format_state::unknown_codec:
        return "unknown codec, " + codec_text(mline, format);
    case format_state::undecodable:
        return codec_text(mline, format) + "; its parameters cannot be decoded";
    default:
        return unmapped_text(mline, mline.payload_numbers[index]);
    }
}

void print_format(outline &out, const sdp_media_line &mline, int index)
{
    const sdp_payload_format &format = mline.formats[index];
    out.row("format " + std::to_string(mline.payload_numbers[index]), format_text(mline, index));
    for (const parameter &field : codec_parameters(format)) {
        if (!field.name.empty())
            out.detail(field.name, field.words);
    }
    for (const sdp_rtcp_fb &entry : feedback_entries(format))
        out.detail("feedback", feedback_text(entry));
}

void print_formats(outline &out, const sdp_media_line &mline)
{
    const int count = std::min<int>(mline.num_formats, SDP_MAX_FORMATS);
    for (int index = 0; index < count; index++) {
        if (state_of(mline, index) == format_state::not_reached) {
            out.row("formats behind it", std::to_string(count - index) + ", not read");
            return;
        }
        print_format(out, mline, index);
    }
}

struct number_field {
    std::string_view name;
    std::uint8_t sdp_media_line::*is_present;
    std::uint16_t sdp_media_line::*value;
    const char *unit;
};

constexpr number_field number_fields[] = {
    {"packet time", &sdp_media_line::ptime_present, &sdp_media_line::ptime, " ms"},
    {"longest packet time", &sdp_media_line::maxptime_present, &sdp_media_line::maxptime, " ms"},
    {"frame rate", &sdp_media_line::framerate_present, &sdp_media_line::framerate, " a second"},
    {"highest packet rate", &sdp_media_line::maxprate_present, &sdp_media_line::maxprate, " a second"},
};

void print_attributes(outline &out, const sdp_media_line &mline)
{
    for (const number_field &field : number_fields) {
        if (mline.*field.is_present != 0)
            out.row(field.name, std::to_string(mline.*field.value) + field.unit);
    }
    if (mline.direction_present != 0)
        out.row("direction", find_word(directions, mline.direction));
    if (mline.setup_present != 0)
        out.row("setup", find_word(setups, mline.setup));
    if (mline.mid_present != 0)
        out.row("identification", mline.mid);
}

std::string precondition_text(const sdp_precondition &entry)
{
    const bool desired = entry.kind == PCD_DES;
    const std::uint32_t status = desired ? entry.desired.status_type : entry.status.status_type;
    const std::uint32_t direction = desired ? entry.desired.direction : entry.status.direction;
    std::string text(find_word(precondition_types, entry.precond_type));
    if (desired)
        text += " " + std::string(find_word(strengths, entry.desired.strength));
    return text + " " + std::string(find_word(status_types, status)) + " " +
           std::string(find_word(precondition_directions, direction));
}

void print_preconditions(outline &out, const sdp_media_line &mline)
{
    if (mline.precond_present == 0)
        return;
    const std::size_t count = std::min<std::size_t>(mline.num_preconds, SDP_MAX_PRECONDS);
    for (const sdp_precondition &entry : std::span(mline.preconds).first(count))
        out.row(find_word(precondition_names, entry.kind), precondition_text(entry));
}

// Only a line that was read to its end has its message attributes marked.
void print_early_end(outline &out, const sdp_media_line &mline)
{
    if (mline.msg_attr_present == 0)
        out.row("reading ended early", mline.num_formats == 0 ? "formats and further attributes are missing"
                                                              : "further formats and attributes are missing");
}

} // namespace

void print_media_line(outline &out, int number, const sdp_media_line &mline)
{
    if (mline.valid == 0) {
        out.heading("Media " + std::to_string(number) + ": not understood");
        out.row("media type", "none of audio, video, message and image");
        return;
    }
    print_heading(out, number, mline);
    print_addresses(out, mline);
    print_bandwidth(out, mline.bandwidth);
    print_formats(out, mline);
    print_attributes(out, mline);
    print_preconditions(out, mline);
    for (const sdp_rtcp_fb &entry : feedback_entries(mline))
        out.row("feedback, all formats", feedback_text(entry));
    if (mline.transport == SDP_TCP_TLS_MSRP)
        out.row("message attributes", "not read for this transport");
    print_message_session(out, mline);
    print_file_transfer(out, mline);
    print_early_end(out, mline);
}

} // namespace inspector
