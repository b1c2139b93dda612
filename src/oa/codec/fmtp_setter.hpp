// Writing the parameters of a block in a row, up to the first that is refused.
#ifndef DAKSDP_OA_CODEC_FMTP_SETTER_HPP
#define DAKSDP_OA_CODEC_FMTP_SETTER_HPP

#include "oa/codec/fmtp_setter.h"
#include "oa/result_code.h"
#include "oa/truncation.hpp"
#include "util/text_range.hpp"

namespace dak {

struct codec_kind;

class parameter_writer {
public:
    // The payload format is looked up once.
    parameter_writer(media_description *md, uint16_t codec_index);

    parameter_writer &integer(bool is_present, uint32_t value, text_range name)
    {
        if (is_present && result_ == SDP_OA_SUCCESS)
            set_integer(static_cast<int32_t>(value), name);
        return *this;
    }
    parameter_writer &flag(bool is_present, uint32_t value, text_range name)
    {
        if (is_present && result_ == SDP_OA_SUCCESS)
            set_flag(value != 0, name);
        return *this;
    }
    parameter_writer &text(bool is_present, text_range value, text_range name)
    {
        if (is_present && result_ == SDP_OA_SUCCESS)
            set_text(value, name);
        return *this;
    }
    uint32_t result() const { return result_; }

private:
    void set_integer(int32_t value, text_range name);
    void set_flag(bool value, text_range name);
    void set_text(text_range value, text_range name);
    char *room_for(text_range name, const char *failure);
    void refuse(const char *failure);

    media_codec *codec_;     // null for a format that is not there
    const codec_kind *kind_; // null for one that has no parameters, too
    uint32_t result_ = SDP_OA_SUCCESS;
};

} // namespace dak

#endif
