#include "sdp/text_buffer.h"

#include "sdp/text_buffer.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

sdp_text_buffer *buffer_of(sdp_lib_context *context)
{
    if (context == nullptr || context->text_buffer == nullptr)
        return fail_null();
    return context->text_buffer;
}

} // namespace

void init_sdp_encoder(sdp_lib_context *context)
{
    sdp_text_buffer *buffer = buffer_of(context);
    if (buffer == nullptr)
        return;
    buffer->length = 0;
    memset(buffer->text, 0, sizeof buffer->text);
}

int dak::append_sdp_text(sdp_lib_context *context, text_range text)
{
    sdp_text_buffer *buffer = buffer_of(context);
    if (buffer == nullptr)
        return 0;
    if (buffer->length > SDP_TEXT_CAPACITY || text.length() > SDP_TEXT_CAPACITY - buffer->length)
        return fail();
    memcpy(buffer->text + buffer->length, text.first, text.length());
    buffer->length += static_cast<uint32_t>(text.length());
    buffer->text[buffer->length] = '\0';
    return 1;
}

int fill_sdp_buffer(sdp_lib_context *context, const char *text)
{
    return text != nullptr ? append_sdp_text(context, text) : fail();
}

const char *get_sdp_text(sdp_lib_context *context)
{
    const sdp_text_buffer *buffer = buffer_of(context);
    return buffer != nullptr ? buffer->text : nullptr;
}
