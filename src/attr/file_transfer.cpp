// Storing and reading back file-transfer records.

#include "attr/file_transfer.h"

#include "attr/attribute_line.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

bool is_selector(int index) { return index >= 0 && index < SDP_MAX_FILE_SELECTORS; }

// Keeps as much of a text as its field takes.
int store_text(media_description *description, char (media_description::*field)[256], const char *text)
{
    if (!is_description(description))
        return 0;
    if (text == nullptr)
        return fail();
    copy_text(description->*field, text);
    return 1;
}

const char *read_text(const media_description *description, char (media_description::*field)[256])
{
    if (description != nullptr)
        return description->*field;
    report_missing_description();
    return nullptr;
}

} // namespace

int dak_sdp_set_media_file_transfer_id_attr(media_description *description, const char *text)
{
    return store_text(description, &media_description::file_transfer_id, text);
}

int dak_sdp_set_media_file_disposition_attr(media_description *description, sdp_file_disposition record)
{
    return store_record(description, &media_description::file_disposition, record);
}

int dak_sdp_set_media_file_date_attr(media_description *description, sdp_file_date record)
{
    return store_record(description, &media_description::file_date, record);
}

int dak_sdp_set_media_file_icon_attr(media_description *description, const char *text)
{
    return store_text(description, &media_description::file_icon, text);
}

int dak_sdp_set_media_file_range_attr(media_description *description, sdp_file_range record)
{
    return store_record(description, &media_description::file_range, record);
}

int dak_sdp_set_media_num_of_file_selectors_attr(media_description *description, int32_t count)
{
    return store_record(description, &media_description::num_file_selectors, count);
}

int dak_sdp_set_media_file_selector_attr(media_description *description, sdp_file_selector record, int index)
{
    if (!is_description(description))
        return 0;
    if (!is_selector(index))
        return fail();
    description->file_selectors[index] = record;
    return 1;
}

const char *dak_sdp_get_message_file_transfer_id_attrs(const media_description *description)
{
    return read_text(description, &media_description::file_transfer_id);
}

void dak_sdp_get_message_file_disposition_attrs(sdp_file_disposition *out,
                                                const media_description *description)
{
    read_record(out, description, &media_description::file_disposition);
}

void dak_sdp_get_message_file_date_attrs(sdp_file_date *out, const media_description *description)
{
    read_record(out, description, &media_description::file_date);
}

const char *dak_sdp_get_message_file_icon_attrs(const media_description *description)
{
    return read_text(description, &media_description::file_icon);
}

void dak_sdp_get_message_file_range_attrs(sdp_file_range *out, const media_description *description)
{
    read_record(out, description, &media_description::file_range);
}

int32_t dak_sdp_get_message_num_of_file_selectors_attrs(const media_description *description)
{
    if (description != nullptr)
        return description->num_file_selectors;
    report_missing_description();
    return 0;
}

void dak_sdp_get_message_file_selector_attrs(sdp_file_selector *out, const media_description *description,
                                             int index)
{
    if (out == nullptr) {
        dak_assert_failed();
        return;
    }
    if (description != nullptr && is_selector(index)) {
        *out = description->file_selectors[index];
        return;
    }
    *out = {};
    if (description == nullptr)
        report_missing_description();
    else
        dak_assert_failed();
}
