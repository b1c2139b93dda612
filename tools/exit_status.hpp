// What the command tells the shell.
#ifndef DAKSDP_TOOLS_EXIT_STATUS_HPP
#define DAKSDP_TOOLS_EXIT_STATUS_HPP

namespace inspector {

enum exit_status {
    exit_ok = 0,
    exit_unwritable = 1, // a body that parses and cannot be generated again
    exit_invalid = 1,    // an offer or answer that is not valid
    exit_unusable = 2,   // wrong arguments, or a file that cannot be read
    exit_refused = 3     // a body that does not parse
};

} // namespace inspector

#endif
