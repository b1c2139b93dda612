// Storing and reading back message-session records.

#include "attr/message_session.h"

#include "attr/attribute_line.hpp"

using namespace dak;

namespace {

// Copies a record out; all zero when it is not marked present.
template <typename Record>
void read_present(Record *out, const media_description *description, Record media_description::*field)
{
    const bool is_absent = description != nullptr && static_cast<uint8_t>((description->*field).present) != 1;
    if (out != nullptr && is_absent)
        *out = {};
    else
        read_record(out, description, field);
}

} // namespace

int dak_sdp_set_media_accept_attr(media_description *description, sdp_accept_attr record)
{
    return store_record(description, &media_description::accept_types, record);
}

int dak_sdp_set_media_accept_wrapped_attr(media_description *description, sdp_accept_attr record)
{
    return store_record(description, &media_description::accept_wrapped_types, record);
}

int dak_sdp_set_media_path_attr(media_description *description, sdp_path_attr record)
{
    return store_record(description, &media_description::path, record);
}

int dak_sdp_set_media_max_size_attr(media_description *description, sdp_max_size_attr record)
{
    return store_record(description, &media_description::max_size, record);
}

void dak_sdp_get_message_accept_attrs(sdp_accept_attr *out, const media_description *description)
{
    read_present(out, description, &media_description::accept_types);
}

void dak_sdp_get_message_accept_wrapped_attrs(sdp_accept_attr *out, const media_description *description)
{
    read_present(out, description, &media_description::accept_wrapped_types);
}

void dak_sdp_get_message_path_attrs(sdp_path_attr *out, const media_description *description)
{
    read_present(out, description, &media_description::path);
}

void dak_sdp_get_message_max_size_attrs(sdp_max_size_attr *out, const media_description *description)
{
    read_present(out, description, &media_description::max_size);
}
