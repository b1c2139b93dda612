// Reading the parameters of one payload format into the fields of a block.
#ifndef DAKSDP_OA_CODEC_FMTP_READER_HPP
#define DAKSDP_OA_CODEC_FMTP_READER_HPP

#include "codec/media_value.h"
#include "util/number.hpp"

namespace dak {

// A field is left alone when its parameter is absent; a value that is no number clears the presence flag.
class parameter_reader {
public:
    parameter_reader(media_description *md, uint16_t codec_index) : md_(md), codec_index_(codec_index) {}

    // The text of a parameter, or null.
    const char *text(const char *name) const { return get_media_value(md_, codec_index_, name); }

    template <typename Field> void signed_number(const char *name, uint8_t &is_present, Field &field) const
    {
        if (const char *found = text(name); found != nullptr)
            is_present = scan_signed(found, field);
    }

    template <typename Field> void unsigned_number(const char *name, uint8_t &is_present, Field &field) const
    {
        if (const char *found = text(name); found != nullptr)
            is_present = scan_unsigned(found, field);
    }

private:
    media_description *md_;
    uint16_t codec_index_;
};

} // namespace dak

#endif
