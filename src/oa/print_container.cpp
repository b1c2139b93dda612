#include "oa/print_container.h"

#include "attr/content_type.hpp"
#include "oa/precondition_fields.hpp"
#include "oa/print_codec.hpp"
#include "oa/words.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

template <size_t Size> void print_word(const dumped_word<Size> *found)
{
    if (found != nullptr)
        log_text(found->printed);
}

void print_bandwidth(const sdp_bandwidth &bandwidth)
{
    if (bandwidth.present == 0)
        return;
    for (const sdp_bandwidth_entry &entry : bandwidth.entries) {
        if (entry.present == 0)
            return;
        if (const auto *modifier = find_word(bandwidth_words, entry.modifier); modifier != nullptr)
            DAK_LOG(modifier->printed, static_cast<unsigned long>(entry.value));
        else
            DAK_LOG("Invalid bandwidth mode %lu \n", static_cast<unsigned long>(entry.modifier));
    }
}

void print_session(const sdp_container &container)
{
    DAK_LOG("version = %u\n", static_cast<unsigned>(container.version));
    DAK_LOG("Origin : \n");
    DAK_LOG("Session Id = %llu \n", static_cast<unsigned long long>(container.origin_session_id));
    DAK_LOG("Version = %llu \n", static_cast<unsigned long long>(container.origin_session_version));
    print_bandwidth(container.bandwidth);
    if (container.time_present != 0)
        DAK_LOG("Time = %ld - %lu \n", static_cast<long>(static_cast<int32_t>(container.start_time)),
                static_cast<unsigned long>(container.stop_time));
    if (container.direction_present == 0)
        return;
    if (const auto *direction = find_word(direction_words, container.direction); direction != nullptr)
        log_text(direction->printed);
    else
        DAK_LOG("session direction : unknown \n");
}

void print_media_line(const sdp_media_line &mline)
{
    DAK_LOG("Media line :");
    if (const auto *media = find_word(media_words, mline.media_type); media != nullptr)
        log_text(media->printed);
    else
        DAK_LOG("Media type - unknown");
    DAK_LOG("Media Port = %hu\n", mline.port);
    DAK_LOG("Number of ports = %u\n", static_cast<unsigned>(mline.num_ports));
    if (const word *transport = find_word(transport_words, mline.transport); transport != nullptr)
        DAK_LOG("Media Profile: %s", transport->text.c_str());
    else
        DAK_LOG("Unknown media profile type\n");
    print_bandwidth(mline.bandwidth);
}

void print_attributes(const sdp_media_line &mline)
{
    if (mline.ptime_present != 0)
        DAK_LOG("a=ptime:%d\n", static_cast<int>(mline.ptime));
    if (mline.maxptime_present != 0)
        DAK_LOG("a=maxptime:%d\n", static_cast<int>(mline.maxptime));
    if (mline.framerate_present != 0)
        DAK_LOG("a=framerate:%d\n", static_cast<int>(mline.framerate));
    if (mline.maxprate_present != 0)
        DAK_LOG("a=maxprate:%d\n", static_cast<int>(mline.maxprate));
    for (uint32_t i = 0; mline.precond_present != 0 && i < mline.num_preconds && i < SDP_MAX_PRECONDS; i++)
        dak_app_oa_print_precondition_attr(&mline.preconds[i]);
    const word *setup = find_word(setup_words, mline.setup);
    if (mline.setup_present != 0 && setup != nullptr)
        DAK_LOG("a=%s", setup->text.c_str());
    const word *connection = find_word(connection_words, mline.conn_status);
    if (mline.conn_status_present != 0 && connection != nullptr)
        DAK_LOG("a=%s", connection->text.c_str());
}

void print_accept(const sdp_accept_attr &accept, const char *name)
{
    if (static_cast<uint8_t>(accept.present) == 0)
        return;
    for (uint32_t i = 0; i < static_cast<uint16_t>(accept.count) && i < SDP_ACCEPT_MAX_TYPES; i++) {
        if (accept.types[i] < content_type_count)
            DAK_LOG("%s:%s", name, content_types[accept.types[i]].read);
    }
}

void print_message_attributes(const sdp_media_line &mline)
{
    const bool is_message = mline.transport == SDP_TCP_MSRP || mline.transport == SDP_TCP_TLS_MSRP;
    if (mline.msg_attr_present == 0 || !is_message)
        return;
    print_accept(mline.accept_types, "accept-type");
    print_accept(mline.accept_wrapped_types, "accept-wrapped-types");
    if (mline.path.present != 0 && mline.path.scheme <= SDP_PATH_MSRPS)
        DAK_LOG("a=path:%s", mline.path.scheme == SDP_PATH_MSRP ? "msrp" : "msrps");
    if (static_cast<uint8_t>(mline.max_size.present) != 0)
        DAK_LOG("a=max-size:%lu", static_cast<unsigned long>(mline.max_size.max_size));
}

void print_format(const sdp_payload_format &format, uint32_t payload_number)
{
    DAK_LOG("RTPMAP :\nPayload number= %u", static_cast<unsigned>(payload_number));
    print_codec_name(format.codec_id);
    DAK_LOG("Number of channels = %u\n", static_cast<unsigned>(format.num_channels));
    DAK_LOG("FMTP:\n");
    print_codec_params(format);
}

} // namespace

void dak_app_oa_print_sdp_container(const sdp_container *container)
{
    if (container == nullptr)
        return;
    DAK_LOG("SDP Container contents : \n");
    print_session(*container);
    for (int i = 0; container->mlines != nullptr && i < container->num_mlines; i++) {
        const sdp_media_line &mline = container->mlines[i];
        print_media_line(mline);
        print_attributes(mline);
        print_message_attributes(mline);
        for (int k = 0; k < mline.num_formats && k < SDP_MAX_FORMATS; k++)
            print_format(mline.formats[k], mline.payload_numbers[k]);
    }
    DAK_LOG("======End of SDP =======\n");
}

void dak_app_oa_print_precondition_attr(const sdp_precondition *entry)
{
    if (entry == nullptr)
        return;
    print_word(find_word(precondition_words, entry->kind));
    print_word(find_word(precondition_type_words, entry->precond_type));
    if (entry->kind == PCD_DES)
        print_word(find_word(strength_words, entry->desired.strength));
    print_word(find_word(status_words, status_of(*entry)));
    print_word(find_word(precondition_direction_words, direction_of(*entry)));
}
