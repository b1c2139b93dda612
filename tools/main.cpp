// The command line of daksdp.

#include "commands.hpp"
#include "exit_status.hpp"
#include "library_log.hpp"

#include <CLI/CLI.hpp>

#include <string>

#ifndef DAKSDP_VERSION
#define DAKSDP_VERSION "of an unknown version"
#endif

namespace {

constexpr const char *about =
    "Shows what the daksdp library reads out of an SDP body (RFC 4566), and what it\n"
    "writes of it again.";
constexpr const char *statuses = "Exit status:\n"
                                 "  0  the body was shown or rewritten\n"
                                 "  1  the body parses, but cannot be generated again\n"
                                 "  2  wrong arguments, or a file that cannot be read\n"
                                 "  3  the body does not parse";

std::string one_line(const CLI::App *, const CLI::Error &error)
{
    return std::string("daksdp: ") + error.what() + " (daksdp --help tells more)\n";
}

struct arguments {
    inspector::request body;
    bool document = false;
    bool json = false;
};

void add_body(CLI::App &command, inspector::request &body)
{
    command.add_option("FILE", body.file, "The body; - for standard input")->required();
    command.add_flag("--log", body.log, "Print the library's log lines to standard error as well");
}

CLI::App *add_show(CLI::App &app, arguments &given)
{
    CLI::App *show = app.add_subcommand("show", "Print what the container of a body holds");
    add_body(*show, given.body);
    CLI::Option *document = show->add_flag(
        "--document", given.document,
        "Print the parser's document in its place: every line of the body, attributes as received");
    show->add_flag("--json", given.json, "Print the container as JSON, with the names of its fields as keys")
        ->excludes(document);
    return show;
}

CLI::App *add_rewrite(CLI::App &app, arguments &given)
{
    CLI::App *rewrite =
        app.add_subcommand("rewrite", "Parse a body and write the SDP text that the container "
                                      "generates, with CR LF");
    add_body(*rewrite, given.body);
    return rewrite;
}

} // namespace

int main(int argc, char **argv)
{
    CLI::App app(about, "daksdp");
    app.set_version_flag("--version", "daksdp " DAKSDP_VERSION, "Print the version and exit");
    app.set_help_all_flag("--help-all", "Print the help of all commands and exit");
    app.footer(statuses);
    app.require_subcommand(1);
    app.failure_message(one_line);

    arguments given;
    const CLI::App *show = add_show(app, given);
    add_rewrite(app, given);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        return app.exit(error) == 0 ? inspector::exit_ok : inspector::exit_unusable;
    }
    inspector::silence_library();
    if (!show->parsed())
        return inspector::rewrite(given.body);
    return given.document ? inspector::show_document(given.body)
           : given.json   ? inspector::show_json(given.body)
                          : inspector::show(given.body);
}
