// The command "show".
#ifndef DAKSDP_TOOLS_SHOW_HPP
#define DAKSDP_TOOLS_SHOW_HPP

#include <string>

namespace inspector {

// Prints what the library reads out of the body in a file; "-" is standard input. `log` sends what the
// library logs to standard error. Gives an exit_status.
int show(const std::string &file, bool log);

} // namespace inspector

#endif
