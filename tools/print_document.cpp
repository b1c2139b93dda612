#include "print_document.hpp"

#include "print_media.hpp"
#include "words.hpp"

#include <algorithm>

namespace inspector {
namespace {

void print_session_lines(outline &out, const sdp_info_container &document, std::size_t slot)
{
    if (document.value_present[slot] == 0)
        return;
    out.row(session_line_types[slot].name, document.values[slot]);
    for (const session_value *line = document.extra_values[slot]; line != nullptr; line = line->next)
        out.row(session_line_types[slot].name, line->text);
}

void print_session(outline &out, const sdp_info_container &document)
{
    out.heading("Session");
    const bool any = std::any_of(std::begin(document.value_present), std::end(document.value_present),
                                 [](std::uint32_t present) { return present != 0; });
    if (!any)
        out.group("no session lines");
    for (std::size_t slot = 0; slot < SDP_SESSION_SLOTS; slot++)
        print_session_lines(out, document, slot);
}

} // namespace

void print_document(outline &out, sdp_lib_context *context, std::span<const body_line> lines)
{
    print_session(out, *context->parser_document);
    const auto sections = split_sections(lines);
    const int count = get_number_of_media_description(context, SDP_PARSER_DOCUMENT);
    for (int index = 0; index < count; index++) {
        media_description *description =
            get_media_description_by_index(context, SDP_PARSER_DOCUMENT, static_cast<std::uint32_t>(index));
        print_media(out, index + 1, *description, sections[static_cast<std::size_t>(index) + 1]);
    }
}

} // namespace inspector
