#include "codec/fmtp_encode.h"

#include "codec/media_info.h"
#include "codec/parameters.hpp"
#include "sdp/text_buffer.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

constexpr size_t scratch_size = 200;

// An a=fmtp line, which begins with its first parameter.
struct fmtp_line {
    sdp_text_buffer *buffer;
    uint32_t payload_number;
    text_range separator;
    char *scratch; // takes each piece as well, unless null
    bool is_started = false;

    int write_piece(sdp_line &piece) const
    {
        if (piece.is_too_long()) {
            DAK_LOG("len of str printed exceeded dst str len%d \n", static_cast<int>(scratch_size));
            return fail();
        }
        if (!piece.write())
            return fail();
        if (scratch != nullptr)
            copy_text(scratch, scratch_size, piece.text());
        return 1;
    }

    int write_head()
    {
        is_started = true;
        sdp_line head(buffer);
        head.add("a=fmtp:").add_signed(static_cast<int32_t>(payload_number)).add(' ');
        return write_piece(head);
    }

    int add(text_range name, text_range value)
    {
        if (!(is_started ? append_sdp_text(buffer, separator) : write_head()))
            return 0;
        sdp_line pair(buffer);
        if (!name.empty())
            pair.add(name).add('=');
        pair.add(value);
        return write_piece(pair);
    }

    int end() const { return !is_started || append_sdp_text(buffer, "\r\n"); }
};

int write_line(fmtp_line line, int count, const uint32_t *present, char (*names)[200], char (*values)[200])
{
    for (int i = 0; i < count; i++) {
        if (present[i] == 1 && !line.add(field_text(names[i]), field_text(values[i])))
            return fail();
    }
    return line.end() ? 1 : fail();
}

} // namespace

int dak::write_fmtp_line(sdp_lib_context *context, uint16_t payload_number, media_codec &codec,
                         const codec_kind &kind)
{
    // The list of telephone events stands on the line without a name; writing it drops the name for good.
    if (&kind == &kinds::telephone_event)
        codec.info.param_name[0][0] = '\0';
    if (context == nullptr)
        return fail();
    return write_line({context->text_buffer, payload_number, kind.separator, nullptr}, kind.count,
                      codec.info.param_present, codec.info.param_name, codec.info.param_value);
}

int dak_sdp_encode_a_equal_fmtp_line(int count, const uint32_t *present, uint32_t payload_number,
                                     char *scratch, sdp_lib_context *context, char (*names)[200],
                                     char (*values)[200], const char *separator)
{
    if (count < 1)
        return 1;
    if (count > MEDIA_INFO_MAX_SLOTS || present == nullptr || scratch == nullptr || context == nullptr ||
        names == nullptr || values == nullptr || separator == nullptr)
        return fail();
    return write_line({context->text_buffer, payload_number, separator, scratch}, count, present, names,
                      values);
}
