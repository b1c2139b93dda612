#include "util/line_scan.h"

#include "util/report.hpp"
#include "util/scan.hpp"

using namespace dak;

namespace {

// A null or reversed range is given back as it is.
template <typename Scan> const char *scan_range(const char *position, const char *end, Scan scan)
{
    return position != nullptr && position < end ? scan(position, end) : position;
}

} // namespace

const char *skip_whitespace(const char *position, const char *end)
{
    return scan_range(position, end, skip_blanks);
}

const char *skip_to_whitespace(const char *position, const char *end)
{
    return scan_range(position, end, find_white);
}

const char *skip_whitespace_and_line_term(const char *position, const char *end)
{
    return scan_range(position, end, skip_white);
}

const char *skip_to_line_term(const char *position, const char *end)
{
    return scan_range(position, end, find_line_term);
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
