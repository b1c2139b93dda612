#include "complaint.hpp"

#include "printable.hpp"

#include <algorithm>
#include <iostream>

namespace inspector {

void warn(const std::string &file, const std::string &text)
{
    std::cerr << "daksdp: " << (file == "-" ? "standard input" : printable(file)) << ": " << printable(text)
              << '\n';
}

int complain(const std::string &file, const std::string &reason, exit_status status)
{
    warn(file, reason);
    return status;
}

int complain(const std::string &file, const std::string &reason, const std::vector<std::string> &reasons,
             exit_status status)
{
    // A failure is told from the inside out: the last lines name it.
    constexpr std::size_t most_reasons = 4;
    warn(file, reason);
    const std::size_t shown = std::min(reasons.size(), most_reasons);
    for (auto line = reasons.end() - static_cast<std::ptrdiff_t>(shown); line != reasons.end(); ++line)
        std::cerr << "  library: " << printable(*line) << '\n';
    return status;
}

} // namespace inspector
