#include "codec/fmtp_encode.h"

#include "codec/media_info.h"
#include "sdp/text_buffer.hpp"
#include "util/bounded_text.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

constexpr size_t scratch_size = 200;

// Hands one piece of the line to the text buffer; it is left in the scratch text as well.
int append_piece(sdp_lib_context *context, char *scratch, const line_builder &piece)
{
    if (!piece.fits()) {
        DAK_LOG("len of str printed exceeded dst str len%d \n", static_cast<int>(scratch_size));
        return fail();
    }
    copy_text(scratch, scratch_size, piece.text());
    return append_sdp_text(context, piece.text()) ? 1 : fail();
}

int append_parameter(sdp_lib_context *context, char *scratch, text_range name, text_range value)
{
    line_builder pair;
    if (!name.empty())
        pair.add(name).add('=');
    return append_piece(context, scratch, pair.add(value));
}

int append_head(sdp_lib_context *context, char *scratch, uint32_t payload_number)
{
    line_builder head;
    head.add("a=fmtp:").add_signed(static_cast<int32_t>(payload_number)).add(' ');
    return append_piece(context, scratch, head);
}

} // namespace

int dak_sdp_encode_a_equal_fmtp_line(int count, const uint32_t *present, uint32_t payload_number,
                                     char *scratch, sdp_lib_context *context, char (*names)[200],
                                     char (*values)[200], const char *separator)
{
    if (count < 1)
        return 1;
    if (count > MEDIA_INFO_MAX_SLOTS || present == nullptr || scratch == nullptr || context == nullptr ||
        names == nullptr || values == nullptr || separator == nullptr)
        return fail();
    const text_range between(separator);
    bool is_started = false;
    for (int i = 0; i < count; i++) {
        if (present[i] != 1)
            continue;
        if (!(is_started ? append_sdp_text(context, between) : append_head(context, scratch, payload_number)))
            return fail();
        is_started = true;
        if (!append_parameter(context, scratch, field_text(names[i]), field_text(values[i])))
            return fail();
    }
    return is_started && !append_sdp_text(context, "\r\n") ? fail() : 1;
}
