#include "util/text_range.hpp"

namespace dak {

text_range text_range::take_token(delimiter_set delimiters)
{
    const char *start = first;
    while (start != last && delimiters.has(*start))
        start++;
    const char *stop = start;
    while (stop != last && !delimiters.ends(*stop))
        stop++;
    first = stop != last && *stop != '\0' ? stop + 1 : stop;
    return {start, stop};
}

} // namespace dak
