#include "print_message.hpp"

#include "record_text.hpp"
#include "words.hpp"

#include <string>
#include <string_view>

namespace inspector {
namespace {

void row_if_set(outline &out, std::string_view label, std::string_view value)
{
    if (!value.empty())
        out.row(label, value);
}

void detail_if_set(outline &out, std::string_view label, std::string_view value)
{
    if (!value.empty())
        out.detail(label, value);
}

std::string number_if_set(std::uint32_t number) { return number != 0 ? std::to_string(number) : ""; }

void print_path(outline &out, const sdp_path_attr &path)
{
    if (path.present == 0)
        return;
    out.group("path");
    out.detail("scheme", find_word(path_schemes, path.scheme));
    detail_if_set(out, "user", path.user);
    out.detail("host", path.host + std::string(path.host_is_ipv6 != 0 ? " (IPv6)" : ""));
    detail_if_set(out, "port", number_if_set(path.port));
    out.detail("session id", path.session_id);
    detail_if_set(out, "transport", path.transport);
}

void print_selector(outline &out, const sdp_file_selector &selector)
{
    if (selector.empty != 0) {
        out.row("file", "any, chosen by the other side");
        return;
    }
    out.group("file");
    detail_if_set(out, "name", selector.name);
    detail_if_set(out, "type", find_word(file_types, selector.type));
    detail_if_set(out, "size", number_if_set(selector.size));
    if (selector.hash_len != 0)
        out.detail("hash, sha-1", selector.hash);
}

void print_dates(outline &out, const sdp_file_date &date)
{
    row_if_set(out, "created", date.creation);
    row_if_set(out, "modified", date.modification);
    row_if_set(out, "last read", date.read);
}

void print_disposition(outline &out, const sdp_file_disposition &disposition)
{
    if (disposition.present == 0)
        return;
    const std::string_view word = find_word(dispositions, disposition.disposition);
    out.row("disposition", word.empty() ? "another word" : word);
}

void print_range(outline &out, const sdp_file_range &range)
{
    const std::string start = std::to_string(range.start);
    if (range.stop != 0)
        out.row("range", start + "-" + std::to_string(range.stop));
    else if (range.start != 0)
        out.row("range", "from " + start);
}

// The two layers have the same records.

template <typename Section> void print_session_records(outline &out, const Section &section)
{
    if (section.accept_types.present != 0)
        out.row("accepts", accept_text(section.accept_types));
    if (section.accept_wrapped_types.present != 0)
        out.row("accepts wrapped", accept_text(section.accept_wrapped_types));
    print_path(out, section.path);
    if (section.max_size.present != 0)
        out.row("largest message", std::to_string(section.max_size.max_size));
}

template <typename Section> void print_file_records(outline &out, const Section &section)
{
    for (const sdp_file_selector &selector : file_selectors(section))
        print_selector(out, selector);
    row_if_set(out, "transfer id", section.file_transfer_id);
    print_disposition(out, section.file_disposition);
    print_dates(out, section.file_date);
    row_if_set(out, "icon, content id", section.file_icon);
    print_range(out, section.file_range);
}

} // namespace

void print_message_session(outline &out, const media_description &description)
{
    print_session_records(out, description);
}
void print_message_session(outline &out, const sdp_media_line &mline) { print_session_records(out, mline); }

void print_file_transfer(outline &out, const media_description &description)
{
    print_file_records(out, description);
}
void print_file_transfer(outline &out, const sdp_media_line &mline) { print_file_records(out, mline); }

} // namespace inspector
