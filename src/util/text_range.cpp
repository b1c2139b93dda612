#include "util/text_range.hpp"

namespace dak {

text_range text_range::take_token(delimiter_set delimiters)
{
    while (first != last && delimiters.has(*first))
        first++;
    const char *start = first;
    while (first != last && *first != '\0' && !delimiters.has(*first))
        first++;
    const text_range token(start, first);
    if (first != last && *first != '\0')
        first++;
    return token;
}

} // namespace dak
