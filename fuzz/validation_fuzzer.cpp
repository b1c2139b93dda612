// Bodies of one session, separated by NULs: every validation of each and of each pair.
#include "container.h"

#include <vector>

namespace {

using verdicts = std::vector<uint32_t>;

void validate_one(const sdp_container &offer, verdicts &out)
{
    out.push_back(dak_app_oa_validate_initial_offer(&offer));
    out.push_back(static_cast<uint32_t>(dak_app_oa_check_preconds(&offer)));
    for (uint32_t i = 0; i < SDP_MAX_GROUPS; ++i) {
        out.push_back(dak_app_oa_validate_group_semantics(&offer, &offer.groups[i]));
        out.push_back(dak_app_oa_validate_group_mids(&offer, &offer.groups[i], i));
    }
}

void validate_pair(const sdp_container &answer, const sdp_container &offer, verdicts &out)
{
    out.push_back(dak_app_oa_validate_modified_sdp(&answer, &offer));
    out.push_back(dak_app_oa_validate_answer(&answer, &offer));
    for (uint32_t i = 0; i <= SDP_MAX_MLINES; ++i)
        out.push_back(dak_app_oa_validate_ans_mline(&answer, &offer, i));
}

// Verdicts and log lines of everything that can be asked.
std::string all_verdicts(const held_container *bodies, std::size_t count)
{
    platform::take_log();
    verdicts out;
    for (std::size_t i = 0; i < count; ++i) {
        validate_one(bodies[i], out);
        if (i + 1 == count)
            break;
        validate_pair(bodies[i], bodies[i + 1], out);
        validate_pair(bodies[i + 1], bodies[i], out);
    }
    std::string seen = platform::take_log();
    for (const uint32_t verdict : out)
        seen += " " + std::to_string(verdict);
    return seen;
}

std::string all_bytes(const held_container *bodies, std::size_t count)
{
    std::string bytes;
    for (std::size_t i = 0; i < count; ++i)
        bytes += bytes_of(bodies[i]);
    return bytes;
}

// A body that does not parse is left out.
std::size_t parse_all(held_container *bodies, std::size_t most, std::string_view text)
{
    std::size_t count = 0;
    while (count < most && !text.empty()) {
        const std::string_view body = text.substr(0, text.find('\0'));
        text.remove_prefix(std::min(text.size(), body.size() + 1));
        if (parse(bodies[count], body) == SDP_OA_SUCCESS)
            ++count;
        else
            dak_app_oa_cleanup_sdp_container(&bodies[count]);
    }
    return count;
}

void expect_same_of_copy(const sdp_container &container)
{
    sdp_container *copy = nullptr;
    FUZZ_EXPECT(dak_app_oa_duplicate_sdp_container(&container, &copy) == SDP_OA_SUCCESS);
    FUZZ_EXPECT(dak_app_oa_validate_initial_offer(copy) == dak_app_oa_validate_initial_offer(&container));
    FUZZ_EXPECT(dak_app_oa_validate_answer(copy, &container) == dak_app_oa_validate_answer(&container, copy));
    dak_app_oa_cleanup_sdp_container(copy);
    dak_free(copy);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    const platform::run run;
    held_container bodies[3];
    const std::size_t count =
        parse_all(bodies, std::size(bodies), {reinterpret_cast<const char *>(data), size});
    const std::string before = all_bytes(bodies, count);
    const std::size_t allocations = platform::allocations();
    const std::string verdicts = all_verdicts(bodies, count);
    FUZZ_EXPECT_SAME(all_verdicts(bodies, count), verdicts);
    FUZZ_EXPECT(all_bytes(bodies, count) == before);
    FUZZ_EXPECT(platform::allocations() == allocations);
    for (std::size_t i = 0; i < count; ++i) {
        std::string text;
        expect_same_of_copy(bodies[i]);
        generate(bodies[i], 4096, text);
    }
    return 0;
}
