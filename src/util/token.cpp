#include "util/token.h"

#include "util/bounded_text.hpp"
#include "util/report.hpp"
#include "util/scan.hpp"
#include "util/token.hpp"

using namespace dak;

namespace {

constexpr size_t destination_size = 256;

// Takes a part that is short enough for its callers' fields; false, reported, for a longer one.
inline bool take_part(text_range token, bool has_nul, text_range &part)
{
    if (token.length() >= part_size)
        return fail();
    part = has_nul ? token.terminated().trimmed() : token.trimmed();
    return true;
}

} // namespace

int get_token(const char *base, int offset, const char *end, const char **token_start, const char **token_end,
              const char *delimiter)
{
    if (base == nullptr || end == nullptr || base >= end || offset < 0)
        return 0;
    if (token_start == nullptr || token_end == nullptr)
        return fail();
    *token_start = offset < end - base ? skip_blanks(base + offset, end) : end;
    if (*token_start >= end)
        return 0;
    *token_end = end_of_token(*token_start, end, delimiter);
    return *token_start < *token_end;
}

type_and_value dak::split_type_and_value(const char *position, const char *end, const char *first_delimiter,
                                         const char *second_delimiter)
{
    type_and_value found(position);
    text_range token(position, position);
    if (position == nullptr || end == nullptr || !take_token(position, end, first_delimiter, token))
        return found;
    const bool has_nul = memchr(token.first, '\0', static_cast<size_t>(end - token.first)) != nullptr;
    if (!take_part(token, has_nul || token.last > end, found.type))
        return found;
    found.has_type = true;
    found.next = token.last;
    const bool value_required =
        first_delimiter != nullptr && *first_delimiter == '=' && found.next <= end && *found.next == '=';
    if (found.next >= end || !take_token(found.next + 1, end, second_delimiter, token)) {
        found.parts = value_required ? 0 : 1;
    } else if (take_part(token, has_nul || token.last > end, found.value)) {
        found.next = token.last;
        found.parts = 2;
    }
    return found;
}

int get_type_and_value(const char *position, const char *end, char *type, char *value, const char **next,
                       const char *first_delimiter, const char *second_delimiter)
{
    if (type == nullptr || value == nullptr)
        return fail();
    const type_and_value found = split_type_and_value(position, end, first_delimiter, second_delimiter);
    if (found.has_type)
        copy_text(type, part_size, found.type);
    if (found.parts == 2)
        copy_text(value, part_size, found.value);
    if (next != nullptr && found.parts != 0)
        *next = found.next;
    return found.parts;
}

int find_type_return_value(const char *line, const char *name, const char *separator, char *destination)
{
    if (line == nullptr || name == nullptr || separator == nullptr || destination == nullptr)
        return fail();
    return begins_with(line, name) ? copy_value(line, separator, destination) : 0;
}

int dak::copy_value(const char *line, const char *separator, char *destination)
{
    const char *found = strstr(line, separator);
    if (found == nullptr)
        return 1;
    // An empty separator is found at the terminator of an empty line; there is nothing behind it.
    if (copy_text(destination, destination_size, *found == '\0' ? found : found + 1))
        return 1;
    DAK_LOG("src str len exceeds dest str len %d\n", static_cast<int>(destination_size));
    return fail();
}
