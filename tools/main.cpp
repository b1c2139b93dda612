// The command line of daksdp.

#include "exit_status.hpp"
#include "show.hpp"

#include <CLI/CLI.hpp>

#include <string>

#ifndef DAKSDP_VERSION
#define DAKSDP_VERSION "of an unknown version"
#endif

namespace {

constexpr const char *about = "Shows what the daksdp library reads out of an SDP body (RFC 4566).";
constexpr const char *statuses = "Exit status:\n"
                                 "  0  the body was read and shown\n"
                                 "  2  wrong arguments, or a file that cannot be read\n"
                                 "  3  the body does not parse";

std::string one_line(const CLI::App *, const CLI::Error &error)
{
    return std::string("daksdp: ") + error.what() + " (daksdp --help tells more)\n";
}

} // namespace

int main(int argc, char **argv)
{
    CLI::App app(about, "daksdp");
    app.set_version_flag("--version", "daksdp " DAKSDP_VERSION, "Print the version and exit");
    app.footer(statuses);
    app.require_subcommand(1);
    app.failure_message(one_line);

    std::string file;
    bool log = false;
    CLI::App *show = app.add_subcommand("show", "Print a body's session and media sections");
    show->add_option("FILE", file, "The body; - for standard input")->required();
    show->add_flag("--log", log, "Print the library's log lines to standard error as well");

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        return app.exit(error) == 0 ? inspector::exit_ok : inspector::exit_unusable;
    }
    return inspector::show(file, log);
}
