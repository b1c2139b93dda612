#include "sdp/rtpmap.h"

#include "util/number.hpp"
#include "util/report.hpp"
#include "util/text.h"
#include "util/token.hpp"

using namespace dak;

int parse_a_euqal_rtpmap(const char *line_start, const char *line_end, uint32_t *payload_number,
                         char *encoding_name, uint32_t *clock_rate, uint32_t *encoding_param)
{
    text_range head(line_start, line_start);
    if (!take_token(line_start, 0, line_end, ":", head) || head.last >= line_end)
        return fail();
    const char *position = skip_blanks(head.last + 1, line_end);
    return get_media_payload_number(&position, line_end, payload_number) &&
           get_media_encoding_name_clock_rate_encoding_parameter(position, line_end, encoding_name,
                                                                 clock_rate, encoding_param);
}

int get_media_payload_number(const char **position, const char *end, uint32_t *number)
{
    if (position == nullptr || number == nullptr)
        return fail();
    text_range token(*position, *position);
    if (!take_token(*position, 0, end, nullptr, token) || !read_lenient(token, *number))
        return fail();
    *position = token.last + 1;
    return 1;
}

int get_media_encoding_name_clock_rate_encoding_parameter(const char *position, const char *end,
                                                          char *encoding_name, uint32_t *clock_rate,
                                                          uint32_t *encoding_param)
{
    if (encoding_name == nullptr || clock_rate == nullptr || encoding_param == nullptr)
        return fail();
    text_range token(position, position);
    if (!take_token(position, 0, end, "/", token) ||
        !create_string(encoding_name, token.first, static_cast<uint32_t>(token.length())))
        return fail();
    if (!take_token(token.last, 1, end, "/", token))
        return fail();
    // A rate without a slash behind it runs through `end`, where the text may already be over.
    token.last = token.last < end ? token.last : end;
    if (!read_lenient(token, *clock_rate))
        return fail();
    *encoding_param = 1;
    if (!take_token(token.last, 1, end, nullptr, token))
        return 1;
    return read_lenient(token, *encoding_param) ? 1 : fail();
}
