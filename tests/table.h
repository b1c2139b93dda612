#ifndef DAKSDP_TESTS_TABLE_H
#define DAKSDP_TESTS_TABLE_H

#include <fstream>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "outcome.h"

// Tables of test data, files in tests/unit/data. A line is a row, its cells stand between bars, and the first
// row names the columns; what begins with "#" is a comment. Blanks at a cell's ends do not count; a cell that is
// a single '"' repeats the one above. "\s" is a blank, "\n", "\r", "\t", "\0" and "\xA0" are what they are in C,
// and "x{199}" is 199 times an x.
namespace table {

using row = std::map<std::string, std::string>;

inline std::string decoded(std::string_view cell)
{
    constexpr std::string_view names = "snrt0", values(" \n\r\t\0", 5);
    std::string text;
    while (!cell.empty()) {
        const std::size_t escape = cell[0] == '\\' ? names.find(cell[1]) : names.npos;
        std::size_t length = cell[0] == '\\' ? 2 : 1;
        if (cell[0] == '{' && !text.empty()) {
            length = cell.find('}') + 1;
            text.append(std::stoul(std::string(cell.substr(1))) - 1, text.back());
        } else if (cell.starts_with("\\x")) {
            length = 4;
            text += static_cast<char>(std::stoul(std::string(cell.substr(2, 2)), nullptr, 16));
        } else
            text += escape != names.npos ? values[escape] : cell[length - 1];
        cell.remove_prefix(length);
    }
    return text;
}

inline std::vector<std::string> cells_of(const std::string &line)
{
    std::vector<std::string> cells;
    for (std::size_t start = 0, stop; start <= line.size(); start = stop + 2) {
        stop = std::min(line.find(" | ", start), line.size());
        const std::size_t first = std::min(line.find_first_not_of(' ', start), stop);
        const std::size_t last = line.find_last_not_of(' ', stop - 1);
        cells.push_back(first < stop ? line.substr(first, last - first + 1) : "");
    }
    return cells;
}

// Hands the rows of a file over, each under the file's name and its line's number.
template <class Check> void for_each_row(const std::string &file, Check check)
{
    std::ifstream in(DAKSDP_TESTS_DIR "/unit/data/" + file);
    std::vector<std::string> columns, above;
    std::string line;
    for (int number = 1; std::getline(in, line); ++number) {
        if (line.empty() || line[0] == '#')
            continue;
        SCOPED_TRACE(file + ":" + std::to_string(number));
        std::vector<std::string> cells = cells_of(line + " ");
        if (columns.empty()) {
            columns = cells;
            continue;
        }
        EXPECT_LE(cells.size(), columns.size());
        cells.resize(columns.size());
        row read;
        for (std::size_t i = 0; i < cells.size(); ++i) {
            cells[i] = cells[i] == "\"" ? above.at(i) : cells[i];
            read[columns[i]] = decoded(cells[i]);
        }
        check(std::as_const(read));
        above = cells;
    }
    EXPECT_FALSE(above.empty()) << file << " has no rows";
}

// What a row expects: its columns "result", where "!" stands for a failure report, "holds" and, if there is one,
// "log".
inline outcome expected(const row &from)
{
    const std::string &result = from.at("result");
    return {std::stoi(result), from.at("holds"), from.count("log") != 0 ? from.at("log") : "",
            result.ends_with('!')};
}

} // namespace table

#endif
