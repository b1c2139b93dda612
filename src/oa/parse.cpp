#include "oa/parse.h"

#include "oa/media_parsing.h"
#include "oa/result_code.h"
#include "oa/session_parsing.h"
#include "sdp/context.hpp"
#include "sdp/parser.hpp"
#include "util/report.hpp"

#include <string.h>

using namespace dak;

namespace {

uint32_t read_origin(sdp_lib_context *document, sdp_container *container)
{
    uint32_t result = dak_app_oa_parse_version(document, container);
    if (result == SDP_OA_SUCCESS)
        result = dak_app_oa_parse_origin(document, container);
    if (result != SDP_OA_SUCCESS) {
        DAK_LOG("dak_app_oa_parse_sdp: Error in parsing origin\n");
        DAK_LOG("dak_app_oa_parse_sdp: Error in parsing connection\n");
    }
    return result;
}

uint32_t read_connection(sdp_lib_context *document, sdp_container *container)
{
    const uint32_t result = dak_app_oa_parse_connection(document, container);
    if (result != SDP_OA_SUCCESS)
        DAK_LOG("dak_app_oa_parse_sdp: Error in parsing connection\n");
    return result;
}

uint32_t read_document(sdp_lib_context *document, sdp_container *container)
{
    uint32_t result = read_origin(document, container);
    if (result != SDP_OA_SUCCESS)
        return result;
    dak_app_oa_parse_session(document, container);
    dak_app_oa_parse_sess_info(document, container);
    result = read_connection(document, container);
    if (result != SDP_OA_SUCCESS)
        return result;
    // A body without a t= line is accepted, as is one whose b= lines cannot be read.
    dak_app_oa_parse_bandwidth(document, container);
    dak_app_oa_parse_time(document, container);
    result = dak_app_oa_parse_mlines(document, container);
    if (result != SDP_OA_SUCCESS)
        return result;
    // Groups name media lines, so these come first.
    return dak_app_oa_parse_gen_attr(document, container);
}

uint32_t read_text(sdp_lib_context *document, sdp_container *container, const sdp_payload_buffer &buffer)
{
    if (parse(document, buffer.text, buffer.capacity, audience::container_layer))
        return read_document(document, container);
    DAK_LOG("dak_app_oa_parse_sdp: SDP Core parse error");
    return SDP_OA_UNUSABLE;
}

} // namespace

uint32_t dak_app_oa_parse_sdp(sdp_container *container, const sdp_payload_buffer *buffer)
{
    if (container == nullptr || buffer == nullptr || buffer->text == nullptr) {
        DAK_LOG("dak_app_oa_parse_sdp:Incorrect SDP params\n");
        return SDP_OA_BAD_PARAMETERS;
    }
    if (buffer->capacity == 0) {
        DAK_LOG(
            "dak_app_oa_parse_sdp:Invalid SDP payload                                              length\n");
        return SDP_OA_INVALID_CONTENT;
    }
    memset(container, 0, sizeof *container);
    sdp_lib_context *document = open_parsing_context();
    if (document == nullptr) {
        DAK_LOG(
            "dak_app_oa_parse_sdp:Failed to initialise                                           SDP context");
        return SDP_OA_BAD_PARAMETERS;
    }
    const uint32_t result = read_text(document, container, *buffer);
    close_context(document);
    return result;
}
