// Reading the parameters of one payload format into the fields of a block.
#ifndef DAKSDP_OA_CODEC_FMTP_READER_HPP
#define DAKSDP_OA_CODEC_FMTP_READER_HPP

#include "codec/media_value.h"
#include "codec/parameters.hpp"
#include "sdp/codec_access.hpp"
#include "util/number.hpp"

namespace dak {

// A field is left alone when its parameter is absent; a value that is no number clears the presence flag.
class parameter_reader {
public:
    parameter_reader(media_description *md, uint16_t codec_index) : md_(md), codec_index_(codec_index)
    {
        codec_ = has_codec(*md, codec_index) ? &md->codecs[codec_index] : nullptr;
        kind_ = codec_ != nullptr ? find_kind(*codec_) : nullptr;
        slots_ = kind_ != nullptr ? set_slots(*codec_, *kind_) : 0;
        for (uint32_t rest = slots_; rest != 0; rest &= rest - 1)
            lengths_ |= uint32_t{1} << kind_->slots[__builtin_ctz(rest)].length();
    }

    // The text of a parameter, or null; asking for a codec that is not there is reported each time.
    const char *text(text_range name) const
    {
        if (codec_ == nullptr)
            return get_media_value(md_, codec_index_, name.first);
        return has_length(name.length()) ? get_parameter(*codec_, *kind_, slots_, name) : nullptr;
    }

    template <typename Field> void signed_number(text_range name, uint8_t &is_present, Field &field) const
    {
        if (const char *found = text(name); found != nullptr)
            is_present = scan_signed(found, field);
    }

    template <typename Field> void unsigned_number(text_range name, uint8_t &is_present, Field &field) const
    {
        if (const char *found = text(name); found != nullptr)
            is_present = scan_unsigned(found, field);
    }

private:
    bool has_length(size_t length) const { return length <= longest_name && (lengths_ >> length & 1) != 0; }

    media_description *md_;
    media_codec *codec_;
    const codec_kind *kind_;
    // Most parameters of most formats are not set: a bit for each slot that is, and for each length of its
    // names.
    uint32_t slots_;
    uint32_t lengths_ = 0;
    uint16_t codec_index_;
};

} // namespace dak

#endif
