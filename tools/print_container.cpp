#include "print_container.hpp"

#include "container.hpp"
#include "container_text.hpp"
#include "library_log.hpp"
#include "print_media_line.hpp"
#include "words.hpp"

#include <algorithm>
#include <string>

namespace inspector {
namespace {

void print_origin(outline &out, const sdp_container &container)
{
    out.row("origin", std::string(container.origin_username) + " " +
                          std::to_string(container.origin_session_id) + " " +
                          std::to_string(container.origin_session_version) + " " +
                          address_text(container.origin_address));
}

std::string mids_text(const sdp_container &container, const sdp_group &group)
{
    std::string text;
    for (const std::uint8_t index : std::span(group.mline_index).first(group.num_mids))
        text += (text.empty() ? "" : ", ") + std::string(container.mlines[index].mid) + " (media " +
                std::to_string(index + 1) + ")";
    return text.empty() ? "no media lines" : text;
}

void print_group(outline &out, const sdp_container &container, const sdp_group &group)
{
    if (group.present == 1)
        out.row("group " + std::string(find_word(group_semantics, group.semantics)),
                mids_text(container, group));
    else if (group.semantics == SDP_GROUP_UNKNOWN)
        out.row("group", "not read: other semantics than LS and FID");
    else
        out.row("group " + std::string(find_word(group_semantics, group.semantics)),
                "not read: it, or one before it, names no media line");
}

void print_groups(outline &out, const sdp_container &container)
{
    const std::size_t count = std::min<std::size_t>(container.num_groups, SDP_MAX_GROUPS);
    for (const sdp_group &group : std::span(container.groups).first(count))
        print_group(out, container, group);
    if (container.num_groups > SDP_MAX_GROUPS)
        out.row("groups", std::to_string(container.num_groups) + " in all; there is no room for more than " +
                              std::to_string(SDP_MAX_GROUPS));
}

void print_session(outline &out, const sdp_container &container)
{
    out.heading("Session");
    out.row("version", std::to_string(container.version));
    if (container.origin_present != 0)
        print_origin(out, container);
    if (container.session_name_present != 0)
        out.row("session name", container.session_name);
    if (container.info_present != 0)
        out.row("information", container.info);
    if (container.connection_present != 0)
        out.row("connection", address_text(container.connection));
    print_bandwidth(out, container.bandwidth);
    if (container.time_present != 0)
        out.row("time", std::to_string(container.start_time) + " to " + std::to_string(container.stop_time));
    else
        out.row("time", "not read, or not there");
    if (container.direction_present != 0)
        out.row("direction", find_word(directions, container.direction));
    print_groups(out, container);
}

std::string joined(std::span<const body_line> lines)
{
    std::string text;
    for (const body_line &line : lines)
        text += std::string(line.text) + "\r\n";
    return text;
}

// The log of a whole body does not tell of which part it speaks, so each part is parsed once more on its own.
void print_reasons_of(outline &out, const std::string &text)
{
    const library_log log(false);
    const parsed_container parsed(text);
    print_reasons(out, log.reasons());
}

} // namespace

void print_container(outline &out, const sdp_container &container, std::span<const body_line> lines)
{
    const std::string smallest_session = "v=0\r\no=- 0 0 IN IP4 0.0.0.0\r\nt=0 0\r\n";
    const auto sections = split_sections(lines);
    print_session(out, container);
    print_reasons_of(out, joined(sections.front()));
    for (int index = 0; index < container.num_mlines; index++) {
        print_media_line(out, index + 1, container.mlines[index]);
        print_reasons_of(out, smallest_session + joined(sections[static_cast<std::size_t>(index) + 1]));
    }
}

void print_reasons(outline &out, const std::vector<std::string> &reasons)
{
    if (reasons.empty())
        return;
    out.group("what the library says of it");
    for (const std::string &reason : reasons)
        out.detail("log", reason);
}

} // namespace inspector
