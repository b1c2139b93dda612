// Fields that a container has in several places, as rows.
#ifndef DAKSDP_TOOLS_CONTAINER_TEXT_HPP
#define DAKSDP_TOOLS_CONTAINER_TEXT_HPP

#include "daksdp.h"
#include "outline.hpp"

#include <string>

namespace inspector {

// "IN IP4 192.0.2.1".
std::string address_text(const sdp_address &address);

// "port 49170 (2 ports)".
std::string port_text(std::uint32_t port, std::uint32_t count);

// A row for each line, and one that tells where the reading of the lines ended early.
void print_bandwidth(outline &out, const sdp_bandwidth &bandwidth);

} // namespace inspector

#endif
