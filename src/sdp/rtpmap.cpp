#include "sdp/rtpmap.h"

#include "util/line_scan.h"
#include "util/number.h"
#include "util/report.hpp"
#include "util/text.h"
#include "util/token.h"

using namespace dak;

namespace {

int read_number(const char *start, const char *stop, uint32_t *number)
{
    return dak_atoi(start, DAK_ATOI_LENIENT, static_cast<uint32_t>(stop - start), number);
}

} // namespace

int parse_a_euqal_rtpmap(const char *line_start, const char *line_end, uint32_t *payload_number,
                         char *encoding_name, uint32_t *clock_rate, uint32_t *encoding_param)
{
    const char *start = nullptr;
    const char *colon = nullptr;
    if (!get_token(line_start, 0, line_end, &start, &colon, ":") || colon >= line_end)
        return fail();
    const char *position = skip_whitespace(colon + 1, line_end);
    return get_media_payload_number(&position, line_end, payload_number) &&
           get_media_encoding_name_clock_rate_encoding_parameter(position, line_end, encoding_name,
                                                                 clock_rate, encoding_param);
}

int get_media_payload_number(const char **position, const char *end, uint32_t *number)
{
    if (position == nullptr || number == nullptr)
        return fail();
    const char *start = nullptr;
    const char *stop = nullptr;
    if (!get_token(*position, 0, end, &start, &stop, nullptr) || !read_number(start, stop, number))
        return fail();
    *position = stop + 1;
    return 1;
}

int get_media_encoding_name_clock_rate_encoding_parameter(const char *position, const char *end,
                                                          char *encoding_name, uint32_t *clock_rate,
                                                          uint32_t *encoding_param)
{
    if (encoding_name == nullptr || clock_rate == nullptr || encoding_param == nullptr)
        return fail();
    const char *start = nullptr;
    const char *stop = nullptr;
    if (!get_token(position, 0, end, &start, &stop, "/") ||
        !create_string(encoding_name, start, static_cast<uint32_t>(stop - start)))
        return fail();
    if (!get_token(stop, 1, end, &start, &stop, "/"))
        return fail();
    // A rate without a slash behind it runs through `end`, where the text may already be over.
    stop = stop < end ? stop : end;
    if (!read_number(start, stop, clock_rate))
        return fail();
    *encoding_param = 1;
    if (!get_token(stop, 1, end, &start, &stop, nullptr))
        return 1;
    return read_number(start, stop, encoding_param) ? 1 : fail();
}
