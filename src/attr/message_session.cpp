// Storing and reading back message-session records.

#include "attr/message_session.h"

#include "attr/attribute_line.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

template <typename Record>
int store(media_description *description, Record media_description::*field, const Record &record)
{
    if (description == nullptr) {
        DAK_LOG("null params \n");
        return 0;
    }
    description->*field = record;
    return 1;
}

template <typename Record>
void read(Record *out, const media_description *description, Record media_description::*field)
{
    if (out == nullptr) {
        dak_assert_failed();
        return;
    }
    *out = {};
    if (description == nullptr)
        report_missing_description();
    else if (static_cast<uint8_t>((description->*field).present) == 1)
        *out = description->*field;
}

} // namespace

int dak_sdp_set_media_accept_attr(media_description *description, sdp_accept_attr record)
{
    return store(description, &media_description::accept_types, record);
}

int dak_sdp_set_media_accept_wrapped_attr(media_description *description, sdp_accept_attr record)
{
    return store(description, &media_description::accept_wrapped_types, record);
}

int dak_sdp_set_media_path_attr(media_description *description, sdp_path_attr record)
{
    return store(description, &media_description::path, record);
}

int dak_sdp_set_media_max_size_attr(media_description *description, sdp_max_size_attr record)
{
    return store(description, &media_description::max_size, record);
}

void dak_sdp_get_message_accept_attrs(sdp_accept_attr *out, const media_description *description)
{
    read(out, description, &media_description::accept_types);
}

void dak_sdp_get_message_accept_wrapped_attrs(sdp_accept_attr *out, const media_description *description)
{
    read(out, description, &media_description::accept_wrapped_types);
}

void dak_sdp_get_message_path_attrs(sdp_path_attr *out, const media_description *description)
{
    read(out, description, &media_description::path);
}

void dak_sdp_get_message_max_size_attrs(sdp_max_size_attr *out, const media_description *description)
{
    read(out, description, &media_description::max_size);
}
