#include "library_log.hpp"

#include "blanks.hpp"
#include "port/host/host_port.h"
#include "printable.hpp"

#include <algorithm>
#include <iostream>

namespace inspector {
namespace {

// Every reading of a media line without preconditions, every generation and every comparison is told of.
constexpr std::string_view ordinary_lines[] = {
    "get_number_of_precond_attrs : no pcd attributes found",
    "dak_app_oa_generate_sdp: SDP out length:",
    "Number of pylds matched ",
    "dak_app_oa_form_dtmf_evt_list: num evts ",
};

void drop_line(int, const char *, void *) {}

void take_line(int, const char *text, void *log) { static_cast<library_log *>(log)->add(text); }

std::string_view without_ending(std::string_view line)
{
    while (line.ends_with('\n') || line.ends_with(' '))
        line.remove_suffix(1);
    return line;
}

bool is_ordinary(std::string_view line)
{
    return std::any_of(std::begin(ordinary_lines), std::end(ordinary_lines),
                       [line](std::string_view start) { return line.starts_with(start); });
}

} // namespace

void silence_library() { dak_host_set_log_sink(drop_line, nullptr); }

library_log::library_log(bool echoes) : echoes_(echoes) { dak_host_set_log_sink(take_line, this); }

library_log::~library_log() { silence_library(); }

void library_log::add(std::string_view text)
{
    const std::string_view line = without_ending(text);
    if (echoes_)
        std::cerr << "log: " << printable(line) << '\n';
    std::string reason = single_blanks(line);
    if (!is_ordinary(reason) && (reasons_.empty() || reasons_.back() != reason))
        reasons_.push_back(std::move(reason));
}

} // namespace inspector
