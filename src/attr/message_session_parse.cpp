// Reading accept-types, accept-wrapped-types, path and max-size lines.

#include "attr/message_session.h"

#include "attr/attribute_line.hpp"
#include "attr/content_type.hpp"
#include "util/number.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

// Reads the first five types; an unknown one ends the reading and leaves `present` as it was.
void store_accept(sdp_accept_attr &record, text_range value)
{
    record.count = 0;
    for (uint32_t &slot : record.types) {
        slot = SDP_ACCEPT_NONE;
        const text_range word = value.take_word();
        if (word.empty())
            continue;
        slot = read_content_type(word, SDP_ACCEPT_TEXT_PLAIN, SDP_ACCEPT_ANY);
        if (slot == SDP_ACCEPT_NONE) {
            char text[200];
            copy_text(text, word);
            DAK_LOG(" fmt list not supported %s \n", text);
            return;
        }
        record.count++;
    }
    record.present = record.count != 0;
    record.kind = 0;
}

bool read_scheme(sdp_path_attr &path, text_range &rest)
{
    const bool has_colon = rest.find(':') != nullptr;
    const text_range scheme = rest.take_until(':');
    path.scheme = scheme.equals("msrps") ? SDP_PATH_MSRPS : SDP_PATH_MSRP;
    if (rest.begins_with("//"))
        rest.first += 2;
    return has_colon && (scheme.equals("msrp") || scheme.equals("msrps"));
}

// Reads host and port; `authority` ends in front of the "/".
bool read_host(sdp_path_attr &path, text_range authority)
{
    path.host_is_ipv6 = authority.begins_with("[");
    if (!path.host_is_ipv6) {
        copy_text(path.host, authority.take_until(':'));
    } else {
        authority.first++;
        if (authority.find(']') == nullptr)
            return false;
        copy_text(path.host, authority.take_until(']'));
        authority.take_until(':');
    }
    path.port = static_cast<uint32_t>(read_saturating(authority));
    return true;
}

// Reads one MSRP URI; false for anything else.
bool read_path(sdp_path_attr &path, text_range rest)
{
    if (!read_scheme(path, rest))
        return false;
    if (rest.find('@') != nullptr)
        copy_text(path.user, rest.take_until('@'));
    if (rest.find('/') == nullptr || !read_host(path, rest.take_until('/')))
        return false;
    const text_range session_id = rest.take_until(';');
    copy_text(path.session_id, session_id);
    // The transport is given no more room than the session id; callers compare it with what earlier releases
    // gave.
    const size_t kept = rest.length() < session_id.length() ? rest.length() : session_id.length();
    copy_text(path.transport, {rest.first, kept});
    path.present = 1;
    return true;
}

} // namespace

int dak_sdp_parse_a_equal_accept_type_line(media_description *description, const char *line_start,
                                           const char *line_end)
{
    return read_message_line(
        description, line_start, line_end,
        [](media_description &section, text_range value) { store_accept(section.accept_types, value); });
}

int dak_sdp_parse_a_equal_accept_wrapped_type_line(media_description *description, const char *line_start,
                                                   const char *line_end)
{
    if (description != nullptr && line_start != nullptr && line_end != nullptr &&
        !is_message_session(*description)) {
        DAK_LOG("accept type not supported for this profile %s \n", description->transport_profile);
        return 1;
    }
    return read_message_line(description, line_start, line_end,
                             [](media_description &section, text_range value) {
                                 store_accept(section.accept_wrapped_types, value);
                             });
}

int dak_sdp_parse_a_equal_path_line(media_description *description, const char *line_start,
                                    const char *line_end)
{
    return read_message_line(description, line_start, line_end,
                             [](media_description &section, text_range value) {
                                 section.path = {};
                                 if (!read_path(section.path, value))
                                     section.path = {};
                             });
}

int dak_sdp_parse_a_equal_max_size_line(media_description *description, const char *line_start,
                                        const char *line_end)
{
    return read_message_line(description, line_start, line_end,
                             [](media_description &section, text_range value) {
                                 section.max_size = {1, static_cast<uint32_t>(read_saturating(value))};
                             });
}
