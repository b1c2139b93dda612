#include "body.hpp"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

namespace inspector {
namespace {

struct file_closer {
    void operator()(std::FILE *file) const { std::fclose(file); }
};

// Reads one character more than a body may have, so that too long a file shows.
std::optional<std::string> read_text(std::FILE *file, std::string &reason)
{
    std::string text(largest_body + 1, '\0');
    text.resize(std::fread(text.data(), 1, text.size(), file));
    if (std::ferror(file) != 0) {
        reason = std::strerror(errno);
        return std::nullopt;
    }
    if (text.size() > largest_body) {
        reason = "longer than " + std::to_string(largest_body) + " bytes, which no body is";
        return std::nullopt;
    }
    return text;
}

std::optional<std::string> read_file(const std::string &name, std::string &reason)
{
    const std::unique_ptr<std::FILE, file_closer> file(std::fopen(name.c_str(), "rb"));
    if (!file) {
        reason = std::strerror(errno);
        return std::nullopt;
    }
    return read_text(file.get(), reason);
}

body cut_at_nul(std::string text)
{
    const std::size_t length = std::min(text.find('\0'), text.size());
    const std::size_t unread = text.size() - length;
    text.resize(length);
    return {std::move(text), unread};
}

std::size_t terminator_length(std::string_view text)
{
    return text.starts_with("\r\n") ? 2 : std::min<std::size_t>(text.size(), 1);
}

std::string_view without_leading_blanks(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    return text;
}

} // namespace

std::optional<body> read_body(const std::string &name, std::string &reason)
{
    auto text = name == "-" ? read_text(stdin, reason) : read_file(name, reason);
    if (!text)
        return std::nullopt;
    return cut_at_nul(std::move(*text));
}

std::vector<body_line> split_lines(std::string_view text)
{
    std::vector<body_line> lines;
    for (std::size_t number = 1; !text.empty(); number++) {
        const std::size_t length = std::min(text.find_first_of("\r\n"), text.size());
        const std::string_view line = without_leading_blanks(text.substr(0, length));
        if (!line.empty())
            lines.push_back({number, line});
        text.remove_prefix(length);
        text.remove_prefix(terminator_length(text));
    }
    return lines;
}

std::vector<std::span<const body_line>> split_sections(std::span<const body_line> lines)
{
    const auto begins_media = [](const body_line &line) { return line.text.starts_with("m="); };
    std::vector<std::span<const body_line>> sections;
    auto start = lines.begin();
    auto end = std::find_if(start, lines.end(), begins_media);
    sections.emplace_back(start, end);
    while (end != lines.end()) {
        start = end;
        end = std::find_if(start + 1, lines.end(), begins_media);
        sections.emplace_back(start, end);
    }
    return sections;
}

} // namespace inspector
