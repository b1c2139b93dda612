// Sofia-SIP's SDP module. Of RTP/AVP it breaks a=rtpmap lines down itself.

#include <sofia-sip/sdp.h>
#include <sofia-sip/su_alloc.h>

#include "peer.hpp"

namespace {

// The session and everything of it belong to a home.
struct message {
    su_home_t *home;
    sdp_parser_t *parser;
    sdp_session_t *session;
};

void release(void *handle)
{
    auto *each = static_cast<message *>(handle);
    sdp_parser_free(each->parser);
    su_home_unref(each->home);
    delete each;
}

void *parse(std::string_view text)
{
    auto *home = static_cast<su_home_t *>(su_home_new(sizeof(su_home_t)));
    sdp_parser_t *parser = sdp_parse(home, text.data(), static_cast<issize_t>(text.size()), 0);
    auto *result = new message{home, parser, sdp_session(parser)};
    if (result->session != nullptr)
        return result;
    release(result);
    return nullptr;
}

std::string_view view(const char *text) { return text != nullptr ? text : ""; }

void add_maps(format_records &records, const sdp_rtpmap_t *map)
{
    for (; map != nullptr; map = map->rm_next) {
        // Static numbers without a line of their own have one of the library's.
        if (map->rm_predef)
            continue;
        records.add(map->rm_pt, view(map->rm_encoding), static_cast<unsigned>(map->rm_rate),
                    view(map->rm_params));
        records.add_parameters(view(map->rm_fmtp));
    }
}

// For a profile that the library does not know, as RTP/AVPF, the lines stay attributes.
void add_attributes(format_records &records, const sdp_attribute_t *attribute)
{
    for (; attribute != nullptr; attribute = attribute->a_next) {
        const std::string_view name = attribute->a_name;
        if (name == "rtpmap")
            records.add_rtpmap(view(attribute->a_value));
        else if (name == "fmtp")
            records.add_fmtp(view(attribute->a_value));
    }
}

void add_media(format_records &records, const sdp_media_t &media)
{
    records.start_media();
    add_maps(records, media.m_rtpmaps);
    add_attributes(records, media.m_attributes);
}

format_records formats(const void *handle)
{
    format_records records;
    const sdp_session_t *session = static_cast<const message *>(handle)->session;
    for (const sdp_media_t *media = session->sdp_media; media != nullptr; media = media->m_next)
        add_media(records, *media);
    return records;
}

bool generate(const void *handle)
{
    static char text[4096];
    const auto *each = static_cast<const message *>(handle);
    sdp_printer_t *printer = sdp_print(each->home, each->session, text, sizeof text, 0);
    const bool written = sdp_message(printer) != nullptr;
    sdp_printer_free(printer);
    return written;
}

} // namespace

const peer bench_peer = {"Sofia-SIP " PEER_VERSION, parse, formats, generate, release};
