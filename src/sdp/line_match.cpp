#include "sdp/line_match.h"

#include "util/report.hpp"

#include <string.h>

using namespace dak;

int find_tag(const char *tag, const char *line)
{
    if (tag == nullptr || line == nullptr)
        return fail();
    return strncmp(line, tag, strlen(tag)) == 0;
}

int find_string(const char *needle, const char *text)
{
    constexpr size_t searched = 255;
    if (needle == nullptr || text == nullptr)
        return fail();
    const size_t text_length = strnlen(text, searched);
    const size_t needle_length = strnlen(needle, text_length + 1);
    for (size_t i = 0; i + needle_length <= text_length; i++) {
        if (memcmp(text + i, needle, needle_length) == 0)
            return 1;
    }
    return 0;
}

int find_media_description(const char *position, const char *end)
{
    if (position == nullptr)
        return fail();
    return position < end && end - position >= 2 && position[0] == 'm' && position[1] == '=';
}
