// Enumeration values and their texts, each pair in one table for the generator, the parser and the printer.
#ifndef DAKSDP_OA_WORDS_HPP
#define DAKSDP_OA_WORDS_HPP

#include "attr/precondition.h"
#include "oa/sdp_container.h"
#include "util/fixed_text.hpp"

namespace dak {

struct word {
    uint32_t value;
    fixed_text<23> text; // in SDP
};

// A word that the dump shows.
template <size_t Size> struct dumped_word : word {
    char printed[Size]; // a log text
};

inline constexpr dumped_word<31> direction_words[] = {
    {{SDP_RECVONLY, "recvonly"}, "session direction : recvonly \n"},
    {{SDP_SENDONLY, "sendonly"}, "session direction : sendonly \n"},
    {{SDP_SENDRECV, "sendrecv"}, "session direction : sendrecv \n"},
    {{SDP_INACTIVE, "inactive"}, "session direction : inactive \n"},
};

inline constexpr dumped_word<24> bandwidth_words[] = {
    {{SDP_BW_AS, "AS"}, "Bandwidth AS :: %lu \n"},       {{SDP_BW_CT, "CT"}, "Bandwidth CT :: %lu \n"},
    {{SDP_BW_TIAS, "TIAS"}, "Bandwidth TIAS :: %lu \n"}, {{SDP_BW_RR, "RR"}, "Bandwidth RR :: %lu \n"},
    {{SDP_BW_RS, "RS"}, "Bandwidth RS :: %lu \n"},
};

inline constexpr word semantics_words[] = {
    {SDP_GROUP_LS, "LS"},
    {SDP_GROUP_FID, "FID"},
};

// In the order in which a received section is searched for them.
inline constexpr word setup_words[] = {
    {SDP_SETUP_ACTIVE, "setup:active"},
    {SDP_SETUP_PASSIVE, "setup:passive"},
    {SDP_SETUP_HOLDCONN, "setup:holdconn"},
    {SDP_SETUP_ACTPASS, "setup:actpass"},
};

inline constexpr word connection_words[] = {
    {SDP_CONNECTION_NEW, "connection:new"},
    {SDP_CONNECTION_EXISTING, "connection:existing"},
};

inline constexpr dumped_word<22> media_words[] = {
    {{SDP_MEDIA_AUDIO, "audio"}, "media type = audio\n"},
    {{SDP_MEDIA_VIDEO, "video"}, "media type = video\n"},
    {{SDP_MEDIA_DATA, "data"}, "media type = data\n"},
    {{SDP_MEDIA_CONTROL, "control"}, "media type = control\n"},
    {{SDP_MEDIA_MESSAGE, "message"}, "media type = message\n"},
    {{SDP_MEDIA_IMAGE, "image"}, "media type = image\n"},
};

inline constexpr word transport_words[] = {
    {SDP_RTP_AVP, "RTP/AVP"},
    {SDP_RTP_AVPF, "RTP/AVPF"},
    {SDP_TCP_MSRP, "TCP/MSRP"},
    {SDP_TCP_TLS_MSRP, "TCP/TLS/MSRP"},
};

inline constexpr dumped_word<8> precondition_words[] = {
    {{PCD_CURR, "curr"}, "a=curr:"},
    {{PCD_DES, "des"}, "a=des:"},
    {{PCD_CONF, "conf"}, "a=conf:"},
};

inline constexpr dumped_word<5> precondition_type_words[] = {
    {{SDP_PRECOND_QOS, "qos"}, "qos "},
};

inline constexpr dumped_word<11> strength_words[] = {
    {{SDP_STRENGTH_UNKNOWN, "unknown"}, "unknown "},       {{SDP_STRENGTH_NONE, "none"}, "none "},
    {{SDP_STRENGTH_FAILURE, "failure"}, "fail "},          {{SDP_STRENGTH_OPTIONAL, "optional"}, "optional "},
    {{SDP_STRENGTH_MANDATORY, "mandatory"}, "mandatory "},
};

inline constexpr dumped_word<8> status_words[] = {
    {{SDP_STATUS_E2E, "e2e"}, "e2e "},
    {{SDP_STATUS_LOCAL, "local"}, "local "},
    {{SDP_STATUS_REMOTE, "remote"}, "remote "},
};

inline constexpr dumped_word<10> precondition_direction_words[] = {
    {{SDP_PRECOND_RECV, "recv"}, "recv\n"},
    {{SDP_PRECOND_SEND, "send"}, "send\n"},
    {{SDP_PRECOND_SENDRECV, "sendrecv"}, "sendrecv\n"},
    {{SDP_PRECOND_NONE, "none"}, "none\n"},
};

// The row of a value, or null.
template <typename Word, size_t N> const Word *find_word(const Word (&words)[N], uint32_t value)
{
    for (const Word &candidate : words) {
        if (candidate.value == value)
            return &candidate;
    }
    return nullptr;
}

// The row of a text, or null.
template <typename Word, size_t N> const Word *find_word(const Word (&words)[N], text_range text)
{
    for (const Word &candidate : words) {
        if (text.equals(candidate.text))
            return &candidate;
    }
    return nullptr;
}

} // namespace dak

#endif
