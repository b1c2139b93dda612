#include "commands.hpp"

#include "body.hpp"
#include "complaint.hpp"
#include "container.hpp"
#include "container_json.hpp"
#include "context.hpp"
#include "library_log.hpp"
#include "outline.hpp"
#include "print_container.hpp"
#include "print_document.hpp"
#include "print_verdict.hpp"
#include "refusal.hpp"
#include "result_meaning.hpp"
#include "validation.hpp"

#include <iostream>

namespace inspector {
namespace {

int close_output()
{
    return std::cout.flush() ? exit_ok : complain("standard output", "cannot be written", exit_unusable);
}

void print_unread(outline &out, const body &received)
{
    if (received.unread == 0)
        return;
    out.heading("Not read");
    out.row("from the first NUL on", std::to_string(received.unread) + " bytes");
}

// For output that has no place for it.
void warn_of_unread(const std::string &file, const body &received)
{
    if (received.unread != 0)
        warn(file, std::to_string(received.unread) + " bytes, from the first NUL on, are not read");
}

// What is generated of such a line is less than was received, and nothing in it tells.
void warn_of_parts(const std::string &file, const sdp_container &container)
{
    for (int index = 0; index < container.num_mlines; index++) {
        if (container.mlines[index].msg_attr_present == 0)
            warn(file, "media line " + std::to_string(index + 1) + " was not read to its end");
    }
}

// Where the lower layer refuses the text, that line is named too.
std::string parse_failure(std::uint32_t result, const body &received)
{
    const std::string text = "does not parse: " + code_and_meaning(result, parse_meanings);
    const auto context = create_context();
    if (result != SDP_OA_UNUSABLE || !context || parse(context.get(), received.text))
        return text;
    return text + ": " + refusal_reason(received.text, split_lines(received.text));
}

// Reads the body of a request, parses it and hands it to `use(received, parsed)`, which gives the status.
template <typename Use> int with_container(const request &asked, Use use)
{
    std::string reason;
    const std::optional<body> received = read_body(asked.file, reason);
    if (!received)
        return complain(asked.file, reason, exit_unusable);
    std::vector<std::string> reasons;
    std::optional<parsed_container> parsed;
    {
        const library_log log(asked.log);
        parsed.emplace(received->text);
        reasons = log.reasons();
    }
    if (parsed->result() != SDP_OA_SUCCESS)
        return complain(asked.file, parse_failure(parsed->result(), *received), reasons, exit_refused);
    return use(*received, *parsed);
}

// A verdict is on what was read, and nothing in it tells what was not.
void warn_of_omissions(const std::string &file, const body &received, const sdp_container &container)
{
    warn_of_unread(file, received);
    warn_of_parts(file, container);
}

int tell(const validation_request &asked, const sdp_container &container, const verdict &found)
{
    if (asked.json) {
        std::cout << verdict_json(found) << '\n';
    } else {
        outline out(std::cout);
        print_verdict(out, found, container);
    }
    const int status = close_output();
    return status == exit_ok && found.code != SDP_VALID ? exit_invalid : status;
}

using comparison = verdict (*)(const sdp_container &, const sdp_container &, bool log);

int compare(const validation_request &asked, comparison validate)
{
    return with_container(asked.body, [&](const body &received, const parsed_container &parsed) {
        const request other = {asked.other, asked.body.log};
        return with_container(other, [&](const body &other_received, const parsed_container &other_parsed) {
            warn_of_omissions(asked.body.file, received, parsed.get());
            warn_of_omissions(other.file, other_received, other_parsed.get());
            return tell(asked, parsed.get(), validate(parsed.get(), other_parsed.get(), other.log));
        });
    });
}

// Only the parsing of the whole body is worth a log, not the inspector's own questions about it.
bool parse_document(sdp_lib_context *context, const request &asked, const body &received)
{
    const library_log log(asked.log);
    return parse(context, received.text);
}

} // namespace

int show(const request &asked)
{
    return with_container(asked, [](const body &received, const parsed_container &parsed) {
        outline out(std::cout);
        print_container(out, parsed.get(), split_lines(received.text));
        print_unread(out, received);
        return close_output();
    });
}

int show_json(const request &asked)
{
    return with_container(asked, [&asked](const body &received, const parsed_container &parsed) {
        warn_of_unread(asked.file, received);
        std::cout << container_json(parsed.get()) << '\n';
        return close_output();
    });
}

int show_document(const request &asked)
{
    std::string reason;
    const std::optional<body> received = read_body(asked.file, reason);
    if (!received)
        return complain(asked.file, reason, exit_unusable);
    const auto context = create_context();
    if (!context)
        return complain(asked.file, "out of memory", exit_unusable);
    const auto lines = split_lines(received->text);
    if (!parse_document(context.get(), asked, *received))
        return complain(asked.file, refusal_reason(received->text, lines), exit_refused);
    outline out(std::cout);
    print_document(out, context.get(), lines);
    print_unread(out, *received);
    return close_output();
}

int rewrite(const request &asked)
{
    return with_container(asked, [&asked](const body &received, parsed_container &parsed) {
        std::string text(largest_body, '\0');
        sdp_payload_buffer buffer = {text.data(), static_cast<std::uint16_t>(text.size())};
        const library_log log(asked.log);
        const std::uint32_t result = dak_app_oa_generate_sdp(&parsed.get(), &buffer);
        if (result != SDP_OA_SUCCESS)
            return complain(asked.file, "cannot be generated: " + code_and_meaning(result, generate_meanings),
                            log.reasons(), exit_unwritable);
        warn_of_unread(asked.file, received);
        warn_of_parts(asked.file, parsed.get());
        std::cout << text.c_str();
        return close_output();
    });
}

int offer(const validation_request &asked)
{
    return with_container(asked.body, [&asked](const body &received, const parsed_container &parsed) {
        warn_of_omissions(asked.body.file, received, parsed.get());
        return tell(asked, parsed.get(), validate_initial_offer(parsed.get(), asked.body.log));
    });
}

int reoffer(const validation_request &asked) { return compare(asked, validate_modified_offer); }

int answer(const validation_request &asked) { return compare(asked, validate_answer); }

} // namespace inspector
