// Validation of offers and answers (RFC 3264).
#ifndef DAKSDP_TOOLS_VALIDATION_HPP
#define DAKSDP_TOOLS_VALIDATION_HPP

#include "daksdp.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace inspector {

// What the library found.
struct verdict {
    std::uint32_t code = SDP_VALID;
    std::optional<int> media_line; // the one that failed, from 1, where it can be told
    std::vector<std::string> reasons;
};

// `log` sends what the library logs to standard error as well.

verdict validate_initial_offer(const sdp_container &offer, bool log);
verdict validate_modified_offer(const sdp_container &modified, const sdp_container &previous, bool log);
verdict validate_answer(const sdp_container &answer, const sdp_container &offer, bool log);

} // namespace inspector

#endif
