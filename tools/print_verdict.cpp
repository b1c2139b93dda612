#include "print_verdict.hpp"

#include "print_container.hpp"
#include "result_meaning.hpp"

#include <nlohmann/json.hpp>

namespace inspector {
namespace {

// "2 (video)".
std::string line_text(int line, const sdp_container &container)
{
    const auto index = static_cast<std::size_t>(line) - 1;
    if (index >= container.num_mlines)
        return std::to_string(line);
    return std::to_string(line) + " (" +
           std::string(find_word(media_types, container.mlines[index].media_type)) + ")";
}

} // namespace

void print_verdict(outline &out, const verdict &found, const sdp_container &container)
{
    const validation_meaning meaning = meaning_of_validation(found.code);
    if (found.code == SDP_VALID) {
        out.heading(found.reasons.empty() ? "valid" : "valid, with warnings");
    } else {
        out.heading("invalid");
        out.row("code", std::to_string(found.code) + ", " + std::string(meaning.name));
        out.row("meaning", meaning.text);
    }
    if (found.media_line)
        out.row("media line", line_text(*found.media_line, container));
    print_reasons(out, found.reasons);
}

std::string verdict_json(const verdict &found)
{
    const validation_meaning meaning = meaning_of_validation(found.code);
    nlohmann::ordered_json object;
    object["verdict"] = found.code == SDP_VALID ? "valid" : "invalid";
    object["code"] = found.code;
    object["name"] = meaning.name;
    object["meaning"] = meaning.text;
    if (found.media_line)
        object["media_line"] = *found.media_line;
    object["reasons"] = found.reasons;
    return object.dump(2, ' ', true, nlohmann::ordered_json::error_handler_t::replace);
}

} // namespace inspector
