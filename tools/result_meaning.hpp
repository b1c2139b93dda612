// The meanings of result codes.
#ifndef DAKSDP_TOOLS_RESULT_MEANING_HPP
#define DAKSDP_TOOLS_RESULT_MEANING_HPP

#include "words.hpp"

#include <cstdint>
#include <string>
#include <string_view>

namespace inspector {

// What dak_app_oa_parse_sdp() gives for a text.
inline constexpr word parse_meanings[] = {
    {SDP_OA_TOO_LONG, "a value is too long"},
    {SDP_OA_NO_MEMORY, "out of memory"},
    {SDP_OA_BAD_PARAMETERS, "there is no o= line"},
    {SDP_OA_INVALID_CONTENT,
     "the body is empty, an address is not IN IP4 or IN IP6, or there are more than 20 media lines or five groups"},
    {SDP_OA_MISSING_TOKEN, "the o= line or the c= line is incomplete"},
    {SDP_OA_UNUSABLE, "the text is no SDP, or its v= line is no number"},
    {SDP_OA_NO_RTPMAP, "the session id or version is no 64-bit number"},
};

// What dak_app_oa_generate_sdp() gives for a container that was parsed.
inline constexpr word generate_meanings[] = {
    {SDP_OA_TOO_LONG, "the text or a part of it does not fit"},
    {SDP_OA_NO_MEMORY, "out of memory"},
    {SDP_OA_BAD_PARAMETERS, "a payload format of an unknown codec has feedback, or an attribute is refused"},
    {SDP_OA_INVALID_CONTENT,
     "what it holds can be parsed but not written, or makes a text of more than 3584 characters"},
    {SDP_OA_NO_RTPMAP, "a payload number above 95 has no a=rtpmap line"},
};

struct validation_meaning {
    std::uint32_t code;
    std::string_view name;
    std::string_view text;
};

// What validation gives.
inline constexpr validation_meaning validation_meanings[] = {
    {SDP_VALID, "SDP_VALID", "valid"},
    {SDP_NO_CONNECTION, "SDP_NO_CONNECTION",
     "a media line without c= line in a body without a session c= line"},
    {SDP_INVALID_ADDRESS, "SDP_INVALID_ADDRESS", "network type, address type or IPv4 text of a connection"},
    {SDP_ZERO_BANDWIDTH, "SDP_ZERO_BANDWIDTH", "session bandwidth with a zero value in its first entry"},
    {SDP_INVALID_ORIGIN, "SDP_INVALID_ORIGIN", "origin missing, or its version not allowed"},
    {SDP_INVALID_MLINES, "SDP_INVALID_MLINES",
     "no usable media line, one without formats, or a wrong count of them"},
    {SDP_NO_TIME, "SDP_NO_TIME", "the offer has a time line, the answer none"},
    {SDP_INVALID_GROUP, "SDP_INVALID_GROUP", "count, semantics, mids, ports or addresses of a group"},
    {SDP_INVALID_MID, "SDP_INVALID_MID", "mid missing where groups are used, repeated, or changed"},
    {SDP_INVALID_MEDIA_TYPE, "SDP_INVALID_MEDIA_TYPE", "media type differs from the offer's"},
    {SDP_INVALID_DIRECTION, "SDP_INVALID_DIRECTION", "direction not allowed by the offer's"},
    {SDP_INVALID_FORMAT, "SDP_INVALID_FORMAT", "media format or its parameters"},
    {SDP_ZERO_PTIME, "SDP_ZERO_PTIME", "ptime of 0"},
    {SDP_INVALID_FEEDBACK, "SDP_INVALID_FEEDBACK", "RTCP feedback on another transport than RTP/AVPF"},
    {SDP_INVALID_PRECONDITIONS, "SDP_INVALID_PRECONDITIONS", "precondition negotiation"},
    {SDP_NULL_ARGUMENT, "SDP_NULL_ARGUMENT", "null, or an index or a list that cannot be read"},
};

constexpr validation_meaning meaning_of_validation(std::uint32_t code)
{
    for (const validation_meaning &meaning : validation_meanings) {
        if (meaning.code == code)
            return meaning;
    }
    return {code, "unknown", "which has no meaning here"};
}

// "code 4, an empty body".
inline std::string code_and_meaning(std::uint32_t result, std::span<const word> meanings)
{
    const std::string_view meaning = find_word(meanings, result);
    return "code " + std::to_string(result) + ", " +
           (meaning.empty() ? "which has no meaning here" : std::string(meaning));
}

} // namespace inspector

#endif
