#include "util/line_scan.h"

#include "util/ascii.hpp"
#include "util/report.hpp"

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
    while (position <= end && *position != character)
        position++;
    return position;
}
