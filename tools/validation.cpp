#include "validation.hpp"

#include "library_log.hpp"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace inspector {
namespace {

// Log lines, with single blanks, that have a media line's index behind them. None holds text of a body.
constexpr std::string_view naming_lines[] = {
    "dak_app_oa_validate_answer: Invalid mline ",
    "dak_app_oa_validate_initial_offer:Invalid mline-",
    "repeated mids ",
    "validate_offer_params:mline with port = 0 in group mline ",
    "validate_offer_params:mline used in 2 groups with same semantics mline ",
};

std::optional<int> named_line(std::string_view reason)
{
    const auto start = std::find_if(std::begin(naming_lines), std::end(naming_lines),
                                    [reason](std::string_view text) { return reason.starts_with(text); });
    if (start == std::end(naming_lines))
        return std::nullopt;
    int index = 0;
    const auto read = std::from_chars(reason.data() + start->size(), reason.data() + reason.size(), index);
    return read.ec == std::errc() ? std::optional(index + 1) : std::nullopt;
}

std::optional<int> named_line(const std::vector<std::string> &reasons)
{
    for (const std::string &reason : reasons) {
        if (const auto line = named_line(reason))
            return line;
    }
    return std::nullopt;
}

// The session alone, or with its first media lines. It shares them with the whole container.
sdp_container first_lines(const sdp_container &container, int count)
{
    sdp_container part = container;
    part.num_mlines = static_cast<std::uint16_t>(std::min<int>(count, container.num_mlines));
    return part;
}

// Media lines are checked in order and up to the first that fails, so the smallest number of them that fails
// in the same way ends with that line. Where the session alone fails so, it is no line's fault.
template <typename Check> std::optional<int> failing_line(std::uint32_t code, int most, Check check)
{
    for (int count = 0; count <= most; count++) {
        if (check(count) == code)
            return count == 0 ? std::nullopt : std::optional(count);
    }
    return std::nullopt;
}

std::optional<int> failing_offered(const sdp_container &offer, std::uint32_t code)
{
    return failing_line(code, offer.num_mlines, [&offer](int count) {
        const sdp_container part = first_lines(offer, count);
        return dak_app_oa_validate_offer_params(&part);
    });
}

// A modified offer is compared with the previous one after it was found valid as an offer. It is left whole
// for that, for the sake of its groups.
std::optional<int> failing_modified(const sdp_container &modified, const sdp_container &previous,
                                    std::uint32_t code)
{
    if (dak_app_oa_validate_offer_params(&modified) != SDP_VALID)
        return failing_offered(modified, code);
    return failing_line(code, previous.num_mlines, [&modified, &previous](int count) {
        const sdp_container part = first_lines(previous, count);
        return dak_app_oa_validate_modified_sdp(&modified, &part);
    });
}

std::optional<int> failing_answered(const sdp_container &answer, const sdp_container &offer,
                                    std::uint32_t code)
{
    return failing_line(code, answer.num_mlines, [&answer, &offer](int count) {
        const sdp_container answered = first_lines(answer, count);
        const sdp_container offered = first_lines(offer, count);
        return dak_app_oa_validate_answer(&answered, &offered);
    });
}

// Whether failing_line() can tell: a part of the media lines has faults of its own in count and groups.
bool concerns_one_line(std::uint32_t code)
{
    return code != SDP_VALID && code != SDP_INVALID_ORIGIN && code != SDP_INVALID_MLINES &&
           code != SDP_INVALID_GROUP;
}

// Only the first validation is logged, not the search for the line, which validates again.
template <typename Check, typename Find> verdict judge(bool log, Check check, Find find)
{
    verdict found;
    {
        const library_log lines(log);
        found.code = check();
        found.reasons = lines.reasons();
    }
    if (found.code != SDP_VALID)
        found.media_line = named_line(found.reasons);
    if (!found.media_line && concerns_one_line(found.code))
        found.media_line = find(found.code);
    return found;
}

} // namespace

verdict validate_initial_offer(const sdp_container &offer, bool log)
{
    return judge(
        log, [&] { return dak_app_oa_validate_initial_offer(&offer); },
        [&](std::uint32_t code) { return failing_offered(offer, code); });
}

verdict validate_modified_offer(const sdp_container &modified, const sdp_container &previous, bool log)
{
    return judge(
        log, [&] { return dak_app_oa_validate_modified_sdp(&modified, &previous); },
        [&](std::uint32_t code) { return failing_modified(modified, previous, code); });
}

verdict validate_answer(const sdp_container &answer, const sdp_container &offer, bool log)
{
    return judge(
        log, [&] { return dak_app_oa_validate_answer(&answer, &offer); },
        [&](std::uint32_t code) { return failing_answered(answer, offer, code); });
}

} // namespace inspector
