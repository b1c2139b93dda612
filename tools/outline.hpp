// The shape of the output: headings, rows below them, and rows below a row.
#ifndef DAKSDP_TOOLS_OUTLINE_HPP
#define DAKSDP_TOOLS_OUTLINE_HPP

#include <cstddef>
#include <ostream>
#include <string_view>

namespace inspector {

// Everything that is written goes through printable().
class outline {
public:
    explicit outline(std::ostream &out) : out_(out) {}

    // Begins a section, parted from the one before it by an empty line.
    void heading(std::string_view text);
    void row(std::string_view label, std::string_view value);
    // A row that explains the row above it.
    void detail(std::string_view label, std::string_view value);
    // A row that names a group of details.
    void group(std::string_view label);

private:
    void write_row(std::size_t indent, std::string_view label, std::string_view value);

    std::ostream &out_;
    bool begun_ = false;
};

} // namespace inspector

#endif
