// The meanings of result codes.
#ifndef DAKSDP_TOOLS_RESULT_MEANING_HPP
#define DAKSDP_TOOLS_RESULT_MEANING_HPP

#include "words.hpp"

#include <cstdint>
#include <string>

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

// "code 4, an empty body".
inline std::string code_and_meaning(std::uint32_t result, std::span<const word> meanings)
{
    const std::string_view meaning = find_word(meanings, result);
    return "code " + std::to_string(result) + ", " +
           (meaning.empty() ? "which has no meaning here" : std::string(meaning));
}

} // namespace inspector

#endif
