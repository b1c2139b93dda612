// Writing accept-types, accept-wrapped-types, path and max-size lines.

#include "attr/message_session.h"

#include "attr/attribute_line.hpp"
#include "attr/content_type.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

// Whether a record is there to be written, with the log line that all four writers share.
bool is_present(uint32_t present)
{
    if (present == 1)
        return true;
    DAK_LOG(" Invalid accept params \n");
    return false;
}

const char *type_text(uint32_t type, const char *content_type::*column)
{
    return type < content_type_count ? content_types[type].*column : nullptr;
}

int encode_accept(sdp_lib_context *context, const sdp_accept_attr &record, const char *head,
                  const char *content_type::*column)
{
    if (!is_present(static_cast<uint8_t>(record.present)))
        return 0;
    sdp_line line(context);
    line.add(head);
    for (uint32_t i = 0; i < static_cast<uint16_t>(record.count) && i < SDP_ACCEPT_MAX_TYPES; i++) {
        if (i > 0)
            line.add(' ');
        if (const char *text = type_text(record.types[i], column); text != nullptr)
            line.add(text);
    }
    return write_attribute_line(line);
}

void add_authority(text_writer &line, const sdp_path_attr &path)
{
    if (path.user[0] != '\0')
        line.add(field_text(path.user)).add('@');
    if (path.host_is_ipv6 == 1)
        line.add('[').add(field_text(path.host)).add(']');
    else
        line.add(field_text(path.host));
    if (path.port != 0)
        line.add(':').add_number(path.port);
}

} // namespace

int dak_sdp_encode_accept_attr(sdp_lib_context *context, media_description *description)
{
    if (!has_write_arguments(context, description))
        return 0;
    return encode_accept(context, description->accept_types, "a=accept-types:", &content_type::accept);
}

int dak_sdp_encode_accept_wrapped_attr(sdp_lib_context *context, media_description *description)
{
    if (!has_write_arguments(context, description))
        return 0;
    // Deployed receivers know the name without its first hyphen.
    return encode_accept(context, description->accept_wrapped_types,
                         "a=acceptwrapped-types:", &content_type::accept_wrapped);
}

int dak_sdp_encode_path_attr(sdp_lib_context *context, media_description *description)
{
    if (!has_write_arguments(context, description) || !is_present(description->path.present))
        return 0;
    const sdp_path_attr &path = description->path;
    sdp_line line(context);
    line.add("a=path:");
    if (path.scheme == SDP_PATH_MSRP)
        line.add("msrp://");
    if (path.scheme == SDP_PATH_MSRPS)
        line.add("msrps://");
    add_authority(line, path);
    line.add('/').add(field_text(path.session_id)).add(';').add(field_text(path.transport));
    return write_attribute_line(line);
}

int dak_sdp_encode_max_size_attr(sdp_lib_context *context, media_description *description)
{
    if (!has_write_arguments(context, description) ||
        !is_present(static_cast<uint8_t>(description->max_size.present)))
        return 0;
    sdp_line line(context);
    line.add("a=max-size:").add_number(description->max_size.max_size);
    return write_attribute_line(line);
}
