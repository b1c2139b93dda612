// What the command says on standard error.
#ifndef DAKSDP_TOOLS_COMPLAINT_HPP
#define DAKSDP_TOOLS_COMPLAINT_HPP

#include "exit_status.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace inspector {

// Writes one line about a file, of which "-" is standard input.
void warn(const std::string &file, const std::string &text);

// Warns and gives the status, for the caller to return.
int complain(const std::string &file, const std::string &reason, exit_status status);

// Complains with the last of the library's reasons below.
int complain(const std::string &file, const std::string &reason, const std::vector<std::string> &reasons,
             exit_status status);

} // namespace inspector

#endif
