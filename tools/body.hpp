// A body as it was received, and its lines.
#ifndef DAKSDP_TOOLS_BODY_HPP
#define DAKSDP_TOOLS_BODY_HPP

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace inspector {

// A body in a SIP message over UDP cannot be longer, and none is nearly that long.
constexpr std::size_t largest_body = 65535;

struct body {
    std::string text;       // up to the first NUL, which ends a body
    std::size_t unread = 0; // characters from that NUL on
};

struct body_line {
    std::size_t number;    // as an editor counts, from 1
    std::string_view text; // without leading blanks and line terminator
};

// Reads a file, or standard input for "-". Without a body `reason` says why.
std::optional<body> read_body(const std::string &name, std::string &reason);

// The lines that are not blank. CR LF, LF and CR end a line.
std::vector<body_line> split_lines(std::string_view text);

// The session's lines, then those of each media section, from its m= line on.
std::vector<std::span<const body_line>> split_sections(std::span<const body_line> lines);

} // namespace inspector

#endif
