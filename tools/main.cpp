// The command line of daksdp.

#include "commands.hpp"
#include "exit_status.hpp"
#include "library_log.hpp"

#include <CLI/CLI.hpp>

#include <cstddef>
#include <string>

#ifndef DAKSDP_VERSION
#define DAKSDP_VERSION "of an unknown version"
#endif

namespace {

constexpr const char *about =
    "Shows what the daksdp library reads out of an SDP body (RFC 4566) and what it\n"
    "writes of it again, and validates offers and answers (RFC 3264).";
constexpr const char *synopses =
    "Commands with their options:\n"
    "  daksdp show [--log] [--json | --document] FILE\n"
    "  daksdp rewrite [--log] FILE\n"
    "  daksdp offer [--log] [--json] FILE\n"
    "  daksdp reoffer [--log] [--json] NEW PREVIOUS\n"
    "  daksdp answer [--log] [--json] ANSWER OFFER\n"
    "A body is a file, or - for standard input. 'daksdp COMMAND --help' tells more of a\n"
    "command.\n";
constexpr const char *show_example = "daksdp show --log volte_offer.sdp";
constexpr const char *rewrite_example = "daksdp rewrite - <volte_offer.sdp";
constexpr const char *statuses =
    "Exit status:\n"
    "  0  the body was shown or rewritten, or is valid\n"
    "  1  the body parses, but cannot be generated again, or is not valid\n"
    "  2  wrong arguments, a file that cannot be read, or output that cannot be written\n"
    "  3  a body does not parse";

std::string one_line(const CLI::App *, const CLI::Error &error)
{
    return std::string("daksdp: ") + error.what() + " (daksdp --help tells more)\n";
}

struct arguments {
    inspector::request body;
    std::string other;
    bool document = false;
    bool json = false;
    int (*run)(const arguments &) = nullptr; // the command
};

int run_show(const arguments &given)
{
    return given.document ? inspector::show_document(given.body)
           : given.json   ? inspector::show_json(given.body)
                          : inspector::show(given.body);
}

int run_rewrite(const arguments &given) { return inspector::rewrite(given.body); }

template <int (*validate)(const inspector::validation_request &)> int run_validation(const arguments &given)
{
    return validate({given.body, given.other, given.json});
}

struct validation_command {
    const char *name;
    const char *about;
    const char *file;
    const char *other; // null without one
    const char *example;
    int (*run)(const arguments &);
};

constexpr validation_command validations[] = {
    {"offer", "Validate an initial offer", "FILE", nullptr, "daksdp offer --log small_audio_offer.sdp",
     run_validation<inspector::offer>},
    {"reoffer", "Validate a modified offer against the previous offer of the session", "NEW", "PREVIOUS",
     "daksdp reoffer hold_offer.sdp volte_offer.sdp", run_validation<inspector::reoffer>},
    {"answer", "Validate an answer against its offer", "ANSWER", "OFFER",
     "daksdp answer --json volte_answer.sdp volte_offer.sdp", run_validation<inspector::answer>},
};

std::string footer(const char *example)
{
    return std::string("Example, with the bodies of examples/:\n  ") + example + "\n\n" + statuses;
}

std::string footer_of_all()
{
    std::string text = std::string(synopses) + "\nExamples, with the bodies of examples/:\n  " +
                       show_example + "\n  " + rewrite_example;
    for (const validation_command &row : validations)
        text += std::string("\n  ") + row.example;
    return text + "\n\n" + statuses;
}

void add_body(CLI::App &command, inspector::request &body, const char *name = "FILE")
{
    command.add_option(name, body.file, "The body; - for standard input")->required()->type_name("");
    command.add_flag("--log", body.log, "Print the library's log lines to standard error as well");
}

void add_show(CLI::App &app, arguments &given)
{
    CLI::App *show = app.add_subcommand("show", "Print what the container of a body holds");
    add_body(*show, given.body);
    show->footer(footer(show_example));
    CLI::Option *document = show->add_flag(
        "--document", given.document,
        "Print the parser's document in its place: every line of the body, attributes as received");
    show->add_flag("--json", given.json, "Print the container as JSON, with the names of its fields as keys")
        ->excludes(document);
    show->callback([&given] { given.run = run_show; });
}

void add_rewrite(CLI::App &app, arguments &given)
{
    CLI::App *rewrite =
        app.add_subcommand("rewrite", "Parse a body and write the SDP text that the container "
                                      "generates, with CR LF");
    add_body(*rewrite, given.body);
    rewrite->footer(footer(rewrite_example));
    rewrite->callback([&given] { given.run = run_rewrite; });
}

void choose_validation(arguments &given, const validation_command &row)
{
    if (given.body.file == "-" && given.other == "-")
        throw CLI::ValidationError(row.name, "only one of the bodies can be standard input");
    given.run = row.run;
}

void add_validation(CLI::App &app, arguments &given, const validation_command &row)
{
    CLI::App *command = app.add_subcommand(row.name, row.about);
    add_body(*command, given.body, row.file);
    if (row.other != nullptr)
        command->add_option(row.other, given.other, "The body that it is compared with; - for standard input")
            ->required()
            ->type_name("");
    command->footer(footer(row.example));
    command->add_flag("--json", given.json, "Print the verdict as JSON");
    command->callback([&given, &row] { choose_validation(given, row); });
}

} // namespace

int main(int argc, char **argv)
{
    CLI::App app(about, "daksdp");
    app.set_version_flag("--version", "daksdp " DAKSDP_VERSION, "Print the version and exit");
    app.set_help_all_flag("--help-all", "Print the help of all commands and exit");
    app.footer(footer_of_all());
    constexpr std::size_t widest_option = 34;
    app.get_formatter()->column_width(widest_option);
    app.require_subcommand(1);
    app.failure_message(one_line);

    arguments given;
    add_show(app, given);
    add_rewrite(app, given);
    for (const validation_command &row : validations)
        add_validation(app, given, row);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        return app.exit(error) == 0 ? inspector::exit_ok : inspector::exit_unusable;
    }
    inspector::silence_library();
    return given.run(given);
}
