#include "oa/generate.h"

#include "oa/media_generation.hpp"
#include "oa/result_code.h"
#include "oa/session_generation.h"
#include "sdp/context.hpp"
#include "sdp/encoder.h"
#include "sdp/text_buffer.h"
#include "util/bounded_text.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

struct session_builder {
    uint32_t (*encode)(sdp_lib_context *document, const sdp_container *container);
    const char *failure;
};

// In the order in which lines are stored; the first that fails decides.
constexpr session_builder session_builders[] = {
    {dak_app_oa_encode_version,
     "dak_app_oa_generate_sdp: Error encoding version                                              \n"},
    {dak_app_oa_encode_origin,
     "dak_app_oa_generate_sdp: Error encoding origin                                                    \n"},
    {dak_app_oa_encode_session,
     "dak_app_oa_generate_sdp: Error encoding session                                                    \n"},
    {dak_app_oa_encode_info,
     "dak_app_oa_generate_sdp: Error encoding info                                             \n"},
    {dak_app_oa_encode_bw,
     "dak_app_oa_generate_sdp: Error encoding BW                                             \n"},
    {dak_app_oa_encode_connection,
     "dak_app_oa_generate_sdp:                            Error encoding connection\n"},
    {dak_app_oa_encode_time,
     "dak_app_oa_generate_sdp: Error encoding time                                             \n"},
    {dak_app_oa_encode_gen_attr,
     "dak_app_oa_generate_sdp:                             Error encoding attributes\n"},
};

uint32_t build_document(sdp_lib_context *document, sdp_container *container)
{
    for (const session_builder &builder : session_builders) {
        const uint32_t result = builder.encode(document, container);
        if (result == SDP_OA_SUCCESS)
            continue;
        log_text(builder.failure);
        return result;
    }
    const uint32_t result = encode_mlines(document, container, audience::container_layer);
    if (result != SDP_OA_SUCCESS)
        DAK_LOG(
            "dak_app_oa_generate_sdp: Error encoding media                                        lines\n");
    return result;
}

uint32_t copy_out(text_range written, const sdp_payload_buffer &buffer)
{
    DAK_LOG("dak_app_oa_generate_sdp: SDP out length: %d, In length: %d\n",
            static_cast<int>(written.length()), static_cast<int>(buffer.capacity));
    if (written.length() + 1 > buffer.capacity) {
        DAK_LOG("dak_app_oa_generate_sdp: SDP length greater than                             allocated \n");
        return SDP_OA_TOO_LONG;
    }
    copy_text(buffer.text, buffer.capacity, written);
    return SDP_OA_SUCCESS;
}

uint32_t encode_document(sdp_lib_context *document, const sdp_payload_buffer &buffer)
{
    if (dak_sdp_encode(document) != 1) {
        DAK_LOG("dak_app_oa_generate_sdp: Error encoding                           session/media\n");
        return SDP_OA_INVALID_CONTENT;
    }
    const char *text = get_sdp_text(document);
    if (text == nullptr) {
        DAK_LOG(
            "dak_app_oa_generate_sdp:Failed getting Encoder                                     sdp_payload \n");
        return SDP_OA_BAD_PARAMETERS;
    }
    return copy_out({text, size_t{document->text_buffer->length}}, buffer);
}

} // namespace

uint32_t dak_app_oa_generate_sdp(sdp_container *container, sdp_payload_buffer *buffer)
{
    if (container == nullptr || buffer == nullptr || buffer->text == nullptr) {
        DAK_LOG("dak_app_oa_generate_sdp: Incorrect params\n");
        return SDP_OA_BAD_PARAMETERS;
    }
    if (buffer->capacity == 0) {
        DAK_LOG(
            "dak_app_oa_generate_sdp: Invalid SDP Payload                                             length\n");
        return SDP_OA_INVALID_CONTENT;
    }
    sdp_lib_context *document = open_encoding_context();
    if (document == nullptr) {
        DAK_LOG(
            "dak_app_oa_generate_sdp: SDP context init                                              failed\n");
        return SDP_OA_BAD_PARAMETERS;
    }
    uint32_t result = build_document(document, container);
    if (result == SDP_OA_SUCCESS)
        result = encode_document(document, *buffer);
    close_context(document);
    return result;
}
