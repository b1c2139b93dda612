// The words for numbers and line types of the library's records.
#ifndef DAKSDP_TOOLS_WORDS_HPP
#define DAKSDP_TOOLS_WORDS_HPP

#include "daksdp.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace inspector {

struct line_type {
    const char *tag; // with its equals sign
    std::string_view name;
};

struct word {
    std::uint32_t number;
    std::string_view text;
};

// In the order of a session's slots.
inline constexpr line_type session_line_types[] = {
    {"v=", "version"}, {"o=", "origin"}, {"s=", "session name"}, {"i=", "information"}, {"u=", "URI"},
    {"e=", "e-mail"},  {"p=", "phone"},  {"c=", "connection"},   {"b=", "bandwidth"},   {"t=", "time"},
    {"r=", "repeat"},  {"z=", "zones"},  {"k=", "key"},          {"a=", "attribute"},
};

// In the order of a media section's slots.
inline constexpr line_type media_line_types[] = {
    {"i=", "information"}, {"c=", "connection"}, {"b=", "bandwidth"}, {"k=", "key"}};

// The names of precondition lines, for people and on the line.
inline constexpr word precondition_names[] = {
    {PCD_CURR, "current status"}, {PCD_DES, "desired status"}, {PCD_CONF, "confirm"}};

inline constexpr word precondition_words[] = {{PCD_CURR, "curr"}, {PCD_DES, "des"}, {PCD_CONF, "conf"}};

inline constexpr word content_types[] = {
    {SDP_ACCEPT_TEXT_PLAIN, "text/plain"},
    {SDP_ACCEPT_CPIM, "message/cpim"},
    {SDP_ACCEPT_ISCOMPOSING, "application/im-iscomposing+xml"},
    {SDP_ACCEPT_IMDN, "message/imdn+xml"},
    {SDP_ACCEPT_TEXT_HTML, "text/html"},
    {SDP_ACCEPT_JPEG, "image/jpeg"},
    {SDP_ACCEPT_PNG, "image/png"},
    {SDP_ACCEPT_BMP, "image/bmp"},
    {SDP_ACCEPT_GIF, "image/gif"},
    {SDP_ACCEPT_ANY, "*"},
};

// The content types that a file selector knows.
inline constexpr std::span<const word> file_types = std::span(content_types).subspan(5, 4);

inline constexpr word dispositions[] = {
    {SDP_FILE_INLINE, "inline"}, {SDP_FILE_ATTACHMENT, "attachment"}, {SDP_FILE_RENDER, "render"}};

// Also of the container's addresses.
inline constexpr word address_types[] = {{SDP_ADDRESS_IP4, "IP4"}, {SDP_ADDRESS_IP6, "IP6"}};

inline constexpr word path_schemes[] = {{SDP_PATH_MSRP, "msrp"}, {SDP_PATH_MSRPS, "msrps"}};

inline constexpr word nack_words[] = {{RTCP_FB_NACK_PLAIN, "nack"}, {RTCP_FB_NACK_PLI, "nack pli"}};

inline constexpr word ccm_words[] = {{RTCP_FB_CCM_FIR, "ccm fir"}, {RTCP_FB_CCM_TMMBR, "ccm tmmbr"}};

inline constexpr word feedback_types[] = {
    {RTCP_FB_NACK, "nack"}, {RTCP_FB_CCM, "ccm"}, {RTCP_FB_UNSUPPORTED, "unsupported"}};

inline constexpr word nack_subtypes[] = {{RTCP_FB_NACK_PLAIN, "plain"}, {RTCP_FB_NACK_PLI, "pli"}};

inline constexpr word ccm_subtypes[] = {{RTCP_FB_CCM_FIR, "fir"}, {RTCP_FB_CCM_TMMBR, "tmmbr"}};

inline constexpr word hash_algorithms[] = {{SDP_FILE_HASH_SHA1, "sha-1"}};

// The container's enumerations.

inline constexpr word media_types[] = {
    {SDP_MEDIA_AUDIO, "audio"},     {SDP_MEDIA_VIDEO, "video"},     {SDP_MEDIA_DATA, "data"},
    {SDP_MEDIA_CONTROL, "control"}, {SDP_MEDIA_MESSAGE, "message"}, {SDP_MEDIA_IMAGE, "image"},
    {SDP_MEDIA_UNKNOWN, "unknown"},
};

inline constexpr word transports[] = {
    {SDP_RTP_AVP, "RTP/AVP"},           {SDP_RTP_AVPF, "RTP/AVPF"},         {SDP_TCP_MSRP, "TCP/MSRP"},
    {SDP_TCP_TLS_MSRP, "TCP/TLS/MSRP"}, {SDP_TRANSPORT_UNKNOWN, "unknown"},
};

inline constexpr word directions[] = {{SDP_RECVONLY, "recvonly"},
                                      {SDP_SENDONLY, "sendonly"},
                                      {SDP_SENDRECV, "sendrecv"},
                                      {SDP_INACTIVE, "inactive"}};

inline constexpr word bandwidth_modifiers[] = {
    {SDP_BW_AS, "AS"}, {SDP_BW_CT, "CT"}, {SDP_BW_TIAS, "TIAS"}, {SDP_BW_RR, "RR"}, {SDP_BW_RS, "RS"}};

inline constexpr word bandwidth_units[] = {{SDP_BW_AS, "kbit/s"},
                                           {SDP_BW_CT, "kbit/s"},
                                           {SDP_BW_TIAS, "bit/s"},
                                           {SDP_BW_RR, "bit/s"},
                                           {SDP_BW_RS, "bit/s"}};

inline constexpr word group_semantics[] = {
    {SDP_GROUP_LS, "LS"}, {SDP_GROUP_FID, "FID"}, {SDP_GROUP_UNKNOWN, "unknown"}};

inline constexpr word setups[] = {{SDP_SETUP_ACTIVE, "active"},
                                  {SDP_SETUP_PASSIVE, "passive"},
                                  {SDP_SETUP_ACTPASS, "actpass"},
                                  {SDP_SETUP_HOLDCONN, "holdconn"}};

inline constexpr word precondition_types[] = {{SDP_PRECOND_UNKNOWN, "unknown"}, {SDP_PRECOND_QOS, "qos"}};

inline constexpr word strengths[] = {{SDP_STRENGTH_UNKNOWN, "unknown"},
                                     {SDP_STRENGTH_NONE, "none"},
                                     {SDP_STRENGTH_FAILURE, "failure"},
                                     {SDP_STRENGTH_OPTIONAL, "optional"},
                                     {SDP_STRENGTH_MANDATORY, "mandatory"}};

inline constexpr word status_types[] = {
    {SDP_STATUS_E2E, "e2e"}, {SDP_STATUS_LOCAL, "local"}, {SDP_STATUS_REMOTE, "remote"}};

inline constexpr word precondition_directions[] = {{SDP_PRECOND_RECV, "recv"},
                                                   {SDP_PRECOND_SEND, "send"},
                                                   {SDP_PRECOND_SENDRECV, "sendrecv"},
                                                   {SDP_PRECOND_NONE, "none"}};

inline constexpr word fixed_rates[] = {{SDP_EVRC_HALF_RATE, "0.5"}, {SDP_EVRC_FULL_RATE, "1"}};

inline constexpr word event_kinds[] = {{SDP_TEL_EVENT_SINGLE, "single"}, {SDP_TEL_EVENT_RANGE, "range"}};

// What RFC 3551 assigns to payload type numbers.
inline constexpr word static_payloads[] = {
    {0, "PCMU, 8000 Hz, 1 channel"},
    {3, "GSM, 8000 Hz, 1 channel"},
    {4, "G723, 8000 Hz, 1 channel"},
    {5, "DVI4, 8000 Hz, 1 channel"},
    {6, "DVI4, 16000 Hz, 1 channel"},
    {7, "LPC, 8000 Hz, 1 channel"},
    {8, "PCMA, 8000 Hz, 1 channel"},
    {9, "G722, 8000 Hz, 1 channel"},
    {10, "L16, 44100 Hz, 2 channels"},
    {11, "L16, 44100 Hz, 1 channel"},
    {12, "QCELP, 8000 Hz, 1 channel"},
    {13, "CN, 8000 Hz, 1 channel"},
    {14, "MPA, 90000 Hz"},
    {15, "G728, 8000 Hz, 1 channel"},
    {16, "DVI4, 11025 Hz, 1 channel"},
    {17, "DVI4, 22050 Hz, 1 channel"},
    {18, "G729, 8000 Hz, 1 channel"},
    {25, "CelB, 90000 Hz"},
    {26, "JPEG, 90000 Hz"},
    {28, "nv, 90000 Hz"},
    {31, "H261, 90000 Hz"},
    {32, "MPV, 90000 Hz"},
    {33, "MP2T, 90000 Hz"},
    {34, "H263, 90000 Hz"},
};

// "" for a number that has no word.
constexpr std::string_view find_word(std::span<const word> words, std::uint32_t number)
{
    for (const word &candidate : words) {
        if (candidate.number == number)
            return candidate.text;
    }
    return {};
}

} // namespace inspector

#endif
