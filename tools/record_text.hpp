// The library's records as the texts that stand for them behind an attribute's colon.
#ifndef DAKSDP_TOOLS_RECORD_TEXT_HPP
#define DAKSDP_TOOLS_RECORD_TEXT_HPP

#include "daksdp.h"

#include <span>
#include <string>
#include <string_view>

namespace inspector {

// The entries of a feedback list that the library gives out: none until one was stored for good.
std::span<const rtcp_fb_entry> feedback_entries(const rtcp_fb_list &feedback);

// Those of a container; the present flags of such lists count when they are exactly 1.
std::span<const sdp_rtcp_fb> feedback_entries(const sdp_media_line &mline);
std::span<const sdp_rtcp_fb> feedback_entries(const sdp_payload_format &format);

std::span<const sdp_file_selector> file_selectors(const media_description &description);
std::span<const sdp_file_selector> file_selectors(const sdp_media_line &mline);

// "nack pli", with the parameter text behind it.
std::string feedback_text(const rtcp_fb_entry &entry);
std::string feedback_text(const sdp_rtcp_fb &entry);

// "message/cpim text/plain".
std::string accept_text(const sdp_accept_attr &accept);

// "msrp://host.example.com:2855/s3ss10n;tcp".
std::string path_text(const sdp_path_attr &path);

// `name:"a.jpg" type:image/jpeg size:4092 hash:sha-1:72:24`, of which only what the selector holds.
std::string selector_text(const sdp_file_selector &selector);

// "IN IP4 192.0.2.1", or "" without a whole address.
std::string rtcp_address_text(const rtcp_address_info &address);

} // namespace inspector

#endif
