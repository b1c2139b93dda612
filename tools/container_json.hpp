// A container as JSON.
#ifndef DAKSDP_TOOLS_CONTAINER_JSON_HPP
#define DAKSDP_TOOLS_CONTAINER_JSON_HPP

#include "daksdp.h"

#include <string>

namespace inspector {

// One object. Its keys are the names of the container's fields, in their order; what is absent has no key,
// which makes presence flags and counts redundant. An enumeration stands as its word, or as its number where
// that has none; a bit map of modes as the list of its modes. All is ASCII, whatever the body held.
std::string container_json(const sdp_container &container);

} // namespace inspector

#endif
