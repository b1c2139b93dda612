#include "refusal.hpp"

#include "context.hpp"
#include "words.hpp"

#include <algorithm>
#include <memory>

namespace inspector {
namespace {

constexpr std::size_t longest_session_value = 198;
constexpr std::size_t longest_quotation = 60;

struct description_cleaner {
    void operator()(media_description *description) const { clean_media_description(description); }
};

// What follows a refused line is not read, so the bodies cut behind a line parse up to one line and fail from
// there on.
std::span<const body_line>::iterator refused_line(std::string_view text, std::span<const body_line> lines)
{
    return std::partition_point(lines.begin(), lines.end(), [text](const body_line &line) {
        const char *end = line.text.data() + line.text.size();
        return parse(create_context().get(), text.substr(0, static_cast<std::size_t>(end - text.data())));
    });
}

std::string session_line_fault(std::string_view line)
{
    const auto has_type = [line](const line_type &type) { return line.starts_with(type.tag); };
    if (std::none_of(std::begin(session_line_types), std::end(session_line_types), has_type))
        return "not a session line";
    if (line.size() > longest_session_value)
        return "a value of more than " + std::to_string(longest_session_value) + " characters";
    return "a malformed session line";
}

std::string media_line_fault(std::string_view line)
{
    const std::unique_ptr<media_description, description_cleaner> description(init_empty_media_description());
    if (!description)
        return "out of memory";
    if (process_media_description(line.data(), line.data() + line.size(), description.get()))
        return "more than " + std::to_string(SDP_MAX_MEDIA_DESCRIPTIONS) + " media sections";
    if (get_number_of_media_payload(description.get()) == SDP_MAX_PAYLOADS)
        return "more than " + std::to_string(SDP_MAX_PAYLOADS) + " payload formats";
    return "a malformed media line";
}

std::string quotation(std::string_view line)
{
    return std::string(line.substr(0, longest_quotation)) + (line.size() > longest_quotation ? "..." : "");
}

} // namespace

std::string refusal_reason(std::string_view text, std::span<const body_line> lines)
{
    if (text.empty())
        return "empty body";
    const auto line = refused_line(text, lines);
    if (line == lines.end())
        return "out of memory";
    const bool media = line->text.starts_with("m=");
    return "line " + std::to_string(line->number) + ": " +
           (media ? media_line_fault(line->text) : session_line_fault(line->text)) + ": " +
           quotation(line->text);
}

} // namespace inspector
