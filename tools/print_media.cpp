#include "print_media.hpp"

#include "container_text.hpp"
#include "held_lines.hpp"
#include "print_format.hpp"
#include "print_message.hpp"
#include "record_text.hpp"
#include "words.hpp"

#include <set>
#include <string>
#include <vector>

namespace inspector {
namespace {

void print_heading(outline &out, int number, const media_description &description)
{
    out.heading("Media " + std::to_string(number) + ": " + description.media_type + ", " +
                port_text(description.media_port, description.number_of_media_port) + ", " +
                description.transport_profile);
}

void print_typed_lines(outline &out, const media_description &description)
{
    for (const line_type &type : media_line_types) {
        const char *value = nullptr;
        for (int index = 0;
             (value = get_media_description_value_by_index(&description, index, type.tag)) != nullptr;
             index++)
            out.row(type.name, value);
    }
}

void print_rtcp(outline &out, const media_description &description)
{
    if (description.rtcp_port == 0)
        return;
    const std::string address = rtcp_address_text(description.rtcp_address);
    out.row("RTCP",
            "port " + std::to_string(description.rtcp_port) + (address.empty() ? "" : ", " + address));
}

void print_formats(outline &out, media_description &description)
{
    for (int index = 0; index < description.number_of_payload; index++)
        print_format(out, description, index);
    if (description.media_format[0] != '\0')
        out.row("format", description.media_format);
}

void print_preconditions(outline &out, const media_description &description)
{
    for (int index = 0; index < description.pcd_count; index++)
        out.row(find_word(precondition_names, description.pcd_type[index]), description.pcd_value[index]);
}

void print_feedback(outline &out, const media_description &description)
{
    for (const rtcp_fb_entry &entry : feedback_entries(description.rtcp_fb))
        out.row("feedback, all formats", feedback_text(entry));
}

// The attributes that the library keeps as text. They include those that it also keeps as records.
std::set<std::string> attribute_lines(const media_description &description)
{
    std::set<std::string> lines;
    for (const session_value *node = description.attributes; node != nullptr; node = node->next)
        lines.insert(normal_line("a=" + std::string(node->text)));
    return lines;
}

void print_partial_lines(outline &out, const std::vector<const body_line *> &lines)
{
    if (lines.empty())
        return;
    out.group("lines that the library does not keep whole");
    for (const body_line *line : lines)
        out.detail("line " + std::to_string(line->number), line->text);
}

void print_remaining_lines(outline &out, media_description &description, std::span<const body_line> lines)
{
    held_lines held(description);
    const std::set<std::string> attributes = attribute_lines(description);
    std::vector<const body_line *> partial;
    for (const body_line &line : lines) {
        const std::string normal = normal_line(line.text);
        if (held.take(normal))
            continue;
        if (attributes.contains(normal))
            out.row("attribute", line.text.substr(2));
        else
            partial.push_back(&line);
    }
    print_partial_lines(out, partial);
}

} // namespace

void print_media(outline &out, int number, media_description &description, std::span<const body_line> lines)
{
    print_heading(out, number, description);
    print_rtcp(out, description);
    print_typed_lines(out, description);
    print_formats(out, description);
    print_preconditions(out, description);
    print_feedback(out, description);
    print_message_session(out, description);
    print_file_transfer(out, description);
    print_remaining_lines(out, description, lines);
}

} // namespace inspector
