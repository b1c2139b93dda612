#include "util/token.h"

#include "util/bounded_text.hpp"
#include "util/line_scan.h"
#include "util/report.hpp"
#include "util/trim.h"

using namespace dak;

namespace {

constexpr size_t part_size = 200;
constexpr size_t destination_size = 256;

int take_part(char *part, text_range token)
{
    if (token.length() >= part_size)
        return fail();
    copy_text(part, part_size, token);
    dak_remove_both_space(part);
    return 1;
}

} // namespace

int get_token(const char *base, int offset, const char *end, const char **token_start, const char **token_end,
              const char *delimiter)
{
    if (base == nullptr || end == nullptr || base >= end || offset < 0)
        return 0;
    if (token_start == nullptr || token_end == nullptr)
        return fail();
    *token_start = offset < end - base ? skip_whitespace(base + offset, end) : end;
    if (*token_start >= end)
        return 0;
    *token_end = delimiter != nullptr ? skip_to_char(*token_start, end, *delimiter)
                                      : skip_to_whitespace(*token_start, end);
    return *token_start < *token_end;
}

int get_type_and_value(const char *position, const char *end, char *type, char *value, const char **next,
                       const char *first_delimiter, const char *second_delimiter)
{
    if (type == nullptr || value == nullptr)
        return fail();
    const char *start = nullptr;
    const char *stop = nullptr;
    if (!get_token(position, 0, end, &start, &stop, first_delimiter))
        return 0;
    if (!take_part(type, {start, stop}))
        return 0;
    const bool value_required =
        first_delimiter != nullptr && *first_delimiter == '=' && stop <= end && *stop == '=';
    const char *value_stop = nullptr;
    const int parts = get_token(stop, 1, end, &start, &value_stop, second_delimiter) ? 2 : 1;
    if (parts == 1 && value_required)
        return 0;
    if (parts == 2 && !take_part(value, {start, value_stop}))
        return 0;
    if (next != nullptr)
        *next = parts == 2 ? value_stop : stop;
    return parts;
}

int find_type_return_value(const char *line, const char *name, const char *separator, char *destination)
{
    if (line == nullptr || name == nullptr || separator == nullptr || destination == nullptr)
        return fail();
    if (strncmp(line, name, strlen(name)) != 0)
        return 0;
    const char *found = strstr(line, separator);
    if (found == nullptr)
        return 1;
    // An empty separator is found at the terminator of an empty line; there is nothing behind it.
    if (copy_text(destination, destination_size, *found == '\0' ? found : found + 1))
        return 1;
    DAK_LOG("src str len exceeds dest str len %d\n", static_cast<int>(destination_size));
    return fail();
}
