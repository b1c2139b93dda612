#include "outline.hpp"

#include "printable.hpp"

#include <string>

namespace inspector {
namespace {

constexpr std::size_t row_indent = 2;
constexpr std::size_t detail_indent = 4;
constexpr std::size_t value_column = 28;
constexpr std::size_t smallest_gap = 2;

} // namespace

void outline::heading(std::string_view text)
{
    if (begun_)
        out_ << '\n';
    begun_ = true;
    out_ << printable(text) << '\n';
}

void outline::row(std::string_view label, std::string_view value) { write_row(row_indent, label, value); }

void outline::detail(std::string_view label, std::string_view value)
{
    write_row(detail_indent, label, value);
}

void outline::group(std::string_view label)
{
    out_ << std::string(row_indent, ' ') << printable(label) << '\n';
}

void outline::write_row(std::size_t indent, std::string_view label, std::string_view value)
{
    std::string line(indent, ' ');
    line += printable(label);
    const std::size_t end = line.size() + smallest_gap;
    line.resize(end > value_column ? end : value_column, ' ');
    line += value.empty() ? "(empty)" : printable(value);
    out_ << line << '\n';
}

} // namespace inspector
