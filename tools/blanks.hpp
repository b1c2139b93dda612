// Words and the blanks between them.
#ifndef DAKSDP_TOOLS_BLANKS_HPP
#define DAKSDP_TOOLS_BLANKS_HPP

#include <string>
#include <string_view>

namespace inspector {

inline constexpr std::string_view blanks = " \t";

// The text up to one of the characters, taken off together with it.
std::string_view take_until(std::string_view &text, std::string_view ends);

// The words of a text with one blank between them.
std::string single_blanks(std::string_view text);

} // namespace inspector

#endif
