// Writing the parameters of a block in a row, up to the first that is refused.
#ifndef DAKSDP_OA_CODEC_FMTP_SETTER_HPP
#define DAKSDP_OA_CODEC_FMTP_SETTER_HPP

#include "oa/codec/fmtp_setter.h"
#include "oa/result_code.h"
#include "oa/truncation.hpp"

namespace dak {

class parameter_writer {
public:
    parameter_writer(media_description *md, uint16_t codec_index) : md_(md), codec_index_(codec_index) {}

    parameter_writer &integer(bool is_present, uint32_t value, const char *name)
    {
        if (is_present && result_ == SDP_OA_SUCCESS)
            result_ = dak_app_sdp_set_int_inmline(md_, codec_index_, static_cast<int32_t>(value), name);
        return *this;
    }
    parameter_writer &flag(bool is_present, uint32_t value, const char *name)
    {
        if (is_present && result_ == SDP_OA_SUCCESS)
            result_ = dak_app_sdp_set_bool_inmline(md_, codec_index_, static_cast<int32_t>(value), name);
        return *this;
    }
    parameter_writer &text(bool is_present, const char *value, const char *name)
    {
        if (is_present && result_ == SDP_OA_SUCCESS)
            result_ = dak_app_sdp_set_string_inmline(md_, codec_index_, value, name);
        return *this;
    }
    uint32_t result() const { return result_; }

private:
    media_description *md_;
    uint16_t codec_index_;
    uint32_t result_ = SDP_OA_SUCCESS;
};

} // namespace dak

#endif
