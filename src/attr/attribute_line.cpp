#include "attr/attribute_line.hpp"

#include "util/report.hpp"
#include "util/token.hpp"

namespace dak {

int write_attribute_line(sdp_line &line, text_range ending)
{
    if (line.is_too_long()) {
        DAK_LOG("src str len exceeds dest str len %d\n", 200);
        return fail();
    }
    if (line.write(ending))
        return 1;
    DAK_LOG(" Unable to fill SDP buffer \n");
    return fail();
}

int has_write_arguments(const sdp_lib_context *context, const media_description *description)
{
    if (context != nullptr && description != nullptr)
        return 1;
    DAK_LOG(" Invalid params \n");
    return 0;
}

bool is_message_session(const media_description &description)
{
    return field_text(description.transport_profile).equals("TCP/MSRP");
}

bool read_attribute_value(const char *line_start, const char *line_end, text_range &value)
{
    const type_and_value attribute = split_type_and_value(line_start, line_end, ":", "\r");
    value = attribute.value;
    return attribute.parts == 2 || fail();
}

int skip_for_profile(const media_description &description)
{
    // Message-session lines share the feedback reader's text; log filters in the field match on it.
    DAK_LOG("RTCP fb not supported for this profile %s \n", description.transport_profile);
    return 1;
}

void report_missing_description() { DAK_LOG(" invalid input argumet \n"); }

} // namespace dak
