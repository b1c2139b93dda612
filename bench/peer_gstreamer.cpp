// GStreamer's SDP library.

#include <gst/sdp/gstsdpmessage.h>

#include "peer.hpp"

namespace {

void *parse(std::string_view text)
{
    GstSDPMessage *message = nullptr;
    gst_sdp_message_new(&message);
    const auto *bytes = reinterpret_cast<const guint8 *>(text.data());
    if (gst_sdp_message_parse_buffer(bytes, static_cast<guint>(text.size()), message) == GST_SDP_OK)
        return message;
    gst_sdp_message_free(message);
    return nullptr;
}

void add_media(format_records &records, const GstSDPMedia *media)
{
    records.start_media();
    for (guint i = 0; i < gst_sdp_media_attributes_len(media); ++i) {
        const GstSDPAttribute *attribute = gst_sdp_media_get_attribute(media, i);
        const std::string_view key = attribute->key;
        if (key == "rtpmap")
            records.add_rtpmap(attribute->value);
        else if (key == "fmtp")
            records.add_fmtp(attribute->value);
    }
}

format_records formats(const void *message)
{
    format_records records;
    const auto *session = static_cast<const GstSDPMessage *>(message);
    for (guint i = 0; i < gst_sdp_message_medias_len(session); ++i)
        add_media(records, gst_sdp_message_get_media(session, i));
    return records;
}

bool generate(const void *message)
{
    gchar *text = gst_sdp_message_as_text(static_cast<const GstSDPMessage *>(message));
    const bool written = text != nullptr;
    g_free(text);
    return written;
}

void release(void *message) { gst_sdp_message_free(static_cast<GstSDPMessage *>(message)); }

} // namespace

const peer bench_peer = {"GStreamer " PEER_VERSION, parse, formats, generate, release};
