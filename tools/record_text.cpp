#include "record_text.hpp"

#include "words.hpp"

#include <algorithm>

namespace inspector {
namespace {

void append_item(std::string &text, std::string_view item)
{
    if (!text.empty() && !item.empty())
        text += ' ';
    text += item;
}

std::string authority_text(const sdp_path_attr &path)
{
    std::string text = path.user[0] != '\0' ? std::string(path.user) + "@" : std::string();
    text += path.host_is_ipv6 != 0 ? "[" + std::string(path.host) + "]" : std::string(path.host);
    if (path.port != 0)
        text += ":" + std::to_string(path.port);
    return text;
}

// The two layers have records of their own with the same fields.

template <typename Entry> std::string text_of_feedback(const Entry &entry)
{
    std::string text(entry.fb_type == RTCP_FB_NACK  ? find_word(nack_words, entry.nack_subtype)
                     : entry.fb_type == RTCP_FB_CCM ? find_word(ccm_words, entry.ccm_subtype)
                                                    : "unsupported");
    append_item(text, entry.fb_param);
    return text;
}

template <typename Holder> std::span<const sdp_rtcp_fb> used_feedback(const Holder &holder)
{
    return std::span(holder.rtcp_fb)
        .first(holder.rtcp_fb_present == 1 ? std::min<std::size_t>(holder.num_rtcp_fb, SDP_MAX_RTCP_FB) : 0);
}

template <typename Section> std::span<const sdp_file_selector> used_selectors(const Section &section)
{
    const int count = std::clamp(section.num_file_selectors, 0, SDP_MAX_FILE_SELECTORS);
    return std::span(section.file_selectors).first(static_cast<std::size_t>(count));
}

} // namespace

std::span<const rtcp_fb_entry> feedback_entries(const rtcp_fb_list &feedback)
{
    return std::span(feedback.fb_entries)
        .first(feedback.fb_present == 1 ? std::min<std::size_t>(feedback.fb_count, RTCP_FB_MAX_ENTRIES) : 0);
}

std::span<const sdp_rtcp_fb> feedback_entries(const sdp_media_line &mline) { return used_feedback(mline); }
std::span<const sdp_rtcp_fb> feedback_entries(const sdp_payload_format &format)
{
    return used_feedback(format);
}

std::span<const sdp_file_selector> file_selectors(const media_description &description)
{
    return used_selectors(description);
}
std::span<const sdp_file_selector> file_selectors(const sdp_media_line &mline)
{
    return used_selectors(mline);
}

std::string feedback_text(const rtcp_fb_entry &entry) { return text_of_feedback(entry); }
std::string feedback_text(const sdp_rtcp_fb &entry) { return text_of_feedback(entry); }

std::string accept_text(const sdp_accept_attr &accept)
{
    std::string text;
    for (const std::uint32_t type :
         std::span(accept.types).first(std::min<std::size_t>(accept.count, SDP_ACCEPT_MAX_TYPES)))
        append_item(text, find_word(content_types, type));
    return text;
}

std::string path_text(const sdp_path_attr &path)
{
    std::string text(find_word(path_schemes, path.scheme));
    text += "://" + authority_text(path) + "/" + path.session_id;
    if (path.transport[0] != '\0')
        text += ";" + std::string(path.transport);
    return text;
}

std::string selector_text(const sdp_file_selector &selector)
{
    std::string text;
    const std::string_view type = find_word(file_types, selector.type);
    if (selector.name[0] != '\0')
        append_item(text, "name:\"" + std::string(selector.name) + "\"");
    if (!type.empty())
        append_item(text, "type:" + std::string(type));
    if (selector.size != 0)
        append_item(text, "size:" + std::to_string(selector.size));
    if (selector.hash_len != 0)
        append_item(text, "hash:sha-1:" + std::string(selector.hash));
    return text;
}

std::string rtcp_address_text(const rtcp_address_info &address)
{
    if (address.valid == 0)
        return {};
    std::string text(address.network_type);
    append_item(text, find_word(address_types, address.address_type));
    append_item(text, address.address);
    return text;
}

} // namespace inspector
