#include "blanks.hpp"

#include <algorithm>

namespace inspector {

std::string_view take_until(std::string_view &text, std::string_view ends)
{
    const std::size_t length = std::min(text.find_first_of(ends), text.size());
    const std::string_view taken = text.substr(0, length);
    text.remove_prefix(std::min(length + 1, text.size()));
    return taken;
}

std::string single_blanks(std::string_view text)
{
    std::string result;
    while (!text.empty()) {
        const std::string_view word = take_until(text, blanks);
        if (!word.empty() && !result.empty())
            result += ' ';
        result += word;
    }
    return result;
}

} // namespace inspector
