#include "util/line_scan.h"

#include "util/ascii.hpp"
#include "util/report.hpp"

#include <stdint.h>
#include <string.h>

using namespace dak;

namespace {

// Advances while `belongs` holds; a null or reversed range is given back as it is.
template <typename Predicate> const char *skip_while(const char *position, const char *end, Predicate belongs)
{
    if (position == nullptr || position >= end)
        return position;
    while (position != end && belongs(*position))
        position++;
    return position;
}

constexpr ptrdiff_t word_size = sizeof(uint64_t);
constexpr uint64_t each_byte = 0x0101010101010101;

// Whether one of eight characters is a control character below 16, as those that end a line are.
bool has_control(const char *position)
{
    uint64_t word = 0;
    memcpy(&word, position, sizeof word);
    return ((word - each_byte * 16) & ~word & each_byte << 7) != 0;
}

} // namespace

const char *skip_whitespace(const char *position, const char *end)
{
    return skip_while(position, end, is_blank);
}

const char *skip_to_whitespace(const char *position, const char *end)
{
    return skip_while(position, end, [](char c) { return !is_white(c); });
}

const char *skip_whitespace_and_line_term(const char *position, const char *end)
{
    return skip_while(position, end, is_white);
}

const char *skip_to_line_term(const char *position, const char *end)
{
    while (position != nullptr && position < end && end - position >= word_size && !has_control(position))
        position += word_size;
    return skip_while(position, end, [](char c) { return !is_line_term(c); });
}

int get_next_line(const char *position, const char *end, const char **line_start, const char **line_end)
{
    if (line_start == nullptr || line_end == nullptr)
        return fail();
    *line_start = skip_whitespace_and_line_term(position, end);
    *line_end = skip_to_line_term(*line_start, end);
    return position != nullptr && *line_start < end;
}

const char *skip_to_char(const char *position, const char *end, char character)
{
    if (position == nullptr || position > end)
        return fail_null();
    const void *found = memchr(position, character, static_cast<size_t>(end - position) + 1);
    return found != nullptr ? static_cast<const char *>(found) : end + 1;
}
