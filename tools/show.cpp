#include "show.hpp"

#include "body.hpp"
#include "context.hpp"
#include "exit_status.hpp"
#include "outline.hpp"
#include "port/host/host_port.h"
#include "print_document.hpp"
#include "printable.hpp"
#include "refusal.hpp"

#include <iostream>
#include <string_view>

namespace inspector {
namespace {

void write_log_line(int, const char *text, void *)
{
    std::string_view line(text);
    while (line.ends_with('\n') || line.ends_with(' '))
        line.remove_suffix(1);
    std::cerr << "log: " << printable(line) << '\n';
}

void drop_log_line(int, const char *, void *) {}

int complain(const std::string &file, const std::string &reason, exit_status status)
{
    std::cerr << "daksdp: " << (file == "-" ? "standard input" : printable(file)) << ": " << printable(reason)
              << '\n';
    return status;
}

// Only the parsing of the whole body is worth a log, not the inspector's own questions about it.
bool parse_logged(sdp_lib_context *context, std::string_view text, bool log)
{
    dak_host_set_log_sink(log ? write_log_line : drop_log_line, nullptr);
    const bool parsed = parse(context, text);
    dak_host_set_log_sink(drop_log_line, nullptr);
    return parsed;
}

void print_body(const body &received, sdp_lib_context *context, std::span<const body_line> lines)
{
    outline out(std::cout);
    print_document(out, context, lines);
    if (received.unread == 0)
        return;
    out.heading("Not read");
    out.row("from the first NUL on", std::to_string(received.unread) + " bytes");
}

} // namespace

int show(const std::string &file, bool log)
{
    std::string reason;
    const std::optional<body> received = read_body(file, reason);
    if (!received)
        return complain(file, reason, exit_unusable);
    const auto context = create_context();
    if (!context)
        return complain(file, "out of memory", exit_unusable);
    const auto lines = split_lines(received->text);
    if (!parse_logged(context.get(), received->text, log))
        return complain(file, refusal_reason(received->text, lines), exit_refused);
    print_body(*received, context.get(), lines);
    if (!std::cout.flush())
        return complain("standard output", "cannot be written", exit_unusable);
    return exit_ok;
}

} // namespace inspector
