#include "sdp/text_buffer.h"

#include "sdp/text_buffer.hpp"

using namespace dak;

int dak::append_sdp_line(sdp_text_buffer *buffer, text_range tag, text_range value)
{
    return append_sdp_text(buffer, tag) && append_sdp_text(buffer, value) && append_sdp_text(buffer, "\r\n");
}

void init_sdp_encoder(sdp_lib_context *context)
{
    sdp_text_buffer *buffer = buffer_of(context);
    if (buffer == nullptr) {
        dak_assert_failed();
        return;
    }
    buffer->length = 0;
    memset(buffer->text, 0, sizeof buffer->text);
}

int fill_sdp_buffer(sdp_lib_context *context, const char *text)
{
    return text != nullptr ? append_sdp_text(buffer_of(context), text) : fail();
}

const char *get_sdp_text(sdp_lib_context *context)
{
    const sdp_text_buffer *buffer = buffer_of(context);
    return buffer != nullptr ? buffer->text : fail_null();
}
