// oSIP's parser.

#include <cstring>

#include <osipparser2/osip_port.h>
#include <osipparser2/sdp_message.h>

#include "peer.hpp"

namespace {

void *parse(std::string_view text)
{
    sdp_message_t *message = nullptr;
    if (sdp_message_init(&message) != 0)
        return nullptr;
    if (sdp_message_parse(message, text.data()) == 0)
        return message;
    sdp_message_free(message);
    return nullptr;
}

void add_attribute(format_records &records, const sdp_attribute_t &attribute)
{
    const std::string_view field = attribute.a_att_field;
    if (field == "rtpmap")
        records.add_rtpmap(attribute.a_att_value);
    else if (field == "fmtp")
        records.add_fmtp(attribute.a_att_value);
}

// Calls `use` with each element of a list.
template <class Element, class Use> void for_each(const osip_list_t &list, Use use)
{
    osip_list_iterator_t iterator;
    for (auto *element = static_cast<Element *>(osip_list_get_first(&list, &iterator)); element != nullptr;
         element = static_cast<Element *>(osip_list_get_next(&iterator)))
        use(*element);
}

format_records formats(const void *message)
{
    format_records records;
    for_each<sdp_media_t>(static_cast<const sdp_message_t *>(message)->m_medias, [&](sdp_media_t &media) {
        records.start_media();
        for_each<sdp_attribute_t>(media.a_attributes,
                                  [&](sdp_attribute_t &attribute) { add_attribute(records, attribute); });
    });
    return records;
}

bool generate(const void *message)
{
    char *text = nullptr;
    const auto *session = static_cast<const sdp_message_t *>(message);
    const bool written = sdp_message_to_str(const_cast<sdp_message_t *>(session), &text) == 0;
    osip_free(text);
    return written;
}

void release(void *message) { sdp_message_free(static_cast<sdp_message_t *>(message)); }

} // namespace

const peer bench_peer = {"oSIP " PEER_VERSION, parse, formats, generate, release};
