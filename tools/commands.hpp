// The commands.
#ifndef DAKSDP_TOOLS_COMMANDS_HPP
#define DAKSDP_TOOLS_COMMANDS_HPP

#include <string>

namespace inspector {

struct request {
    std::string file; // "-" is standard input
    bool log = false; // sends what the library logs to standard error
};

struct validation_request {
    request body;
    std::string other; // what the body is validated against, if anything
    bool json = false; // prints the verdict as JSON
};

// Each command writes to standard output and gives an exit_status.

// Prints the container of a body for a person.
int show(const request &body);

// Prints the container as JSON.
int show_json(const request &body);

// Prints the parser's document.
int show_document(const request &body);

// Writes what the container generates.
int rewrite(const request &body);

// Print the verdict on an initial offer, on a modified offer against the previous one, and on an answer against
// its offer.
int offer(const validation_request &asked);
int reoffer(const validation_request &asked);
int answer(const validation_request &asked);

} // namespace inspector

#endif
