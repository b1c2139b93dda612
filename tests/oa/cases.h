#ifndef DAKSDP_TESTS_OA_CASES_H
#define DAKSDP_TESTS_OA_CASES_H

#include <cstdint>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "outcome.h"

// Cases in a text file: a label at the margin, and below it, indented, what is given and expected, each line
// a key and a value.
//
//     [kind argument ...]        begins a section: what its cases are, and for whom
//       key value                indented below it: belongs to each of its cases, in front of their own
//                                values of this key, which stand where a value is "..." if there is one
//     label | key | other key    names columns, for cases that fit a line
//     label of a case | value | value
//       key value                a further value of this case
//
// A kind that ends in "in order" has each case twice: as it is, and with what all later cases of the section
// change done as well, as the first of several faults is what is to be found.
//
// A section "formats KIND" behind those of a kind tells by one case which formats, its "format" lines, show
// values in the log lines of them all.
//
// "#" begins a comment. "(x*62)" stands for 62 times x, "\n" for a line feed; quotes around a value keep its
// blanks.
namespace oa_tests {

struct test_case {
    using values = std::map<std::string, std::vector<std::string>>;

    std::string kind, argument, label, place;
    values given, own;                   // of its section, and by itself
    mutable std::set<std::string> asked; // keys whose values a check has looked at

    bool has(const std::string &key) const { return !all(key).empty(); }
    std::vector<std::string> all(const std::string &key) const;
    // All values of a key with blanks between them, or a line each.
    std::string operator[](const std::string &key) const;
    std::string lines(const std::string &key) const;
    // 0 if it is not given.
    uint32_t number(const std::string &key) const;
    // Expects the result, the log and the report that the case tells, and this text.
    void expect(const outcome &seen, const std::string &text = "") const;
};

std::vector<std::string> words(const std::string &text, char delimiter = ' ');

// Hands each case of a kind in a file below tests/ to `check`, which is to look at all that the case says.
void for_each_case(const std::string &file, const std::string &kind,
                   const std::function<void(const test_case &)> &check);

} // namespace oa_tests

#endif
