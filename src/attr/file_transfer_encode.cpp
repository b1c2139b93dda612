// Writing file-selector, file-transfer-id, file-disposition, file-date, file-icon and file-range lines.

#include "attr/file_transfer.h"

#include "attr/attribute_line.hpp"
#include "attr/content_type.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

int encode_text(sdp_lib_context *context, const char *head, text_range text)
{
    sdp_line line(context);
    line.add(head).add(text);
    return write_attribute_line(line);
}

int encode_date(sdp_lib_context *context, const char *head, text_range date)
{
    if (date.empty())
        return 1;
    sdp_line line(context);
    line.add(head).add(date);
    return write_attribute_line(line, "\"\r\n");
}

// Each item keeps its trailing blank, at the end of the line too; the hash comes last and has none.
void add_items(text_writer &line, const sdp_file_selector &selector)
{
    if (selector.name[0] != '\0')
        line.add("name:\"").add(field_text(selector.name)).add("\" ");
    if (is_file_type(selector.type))
        line.add("type:").add(content_types[selector.type].read).add(' ');
    if (selector.size != 0)
        line.add("size:").add_number(selector.size).add(' ');
    if (selector.hash_len != 0)
        line.add("hash:")
            .add(selector.hash_alg == SDP_FILE_HASH_SHA1 ? "sha-1:" : "")
            .add(field_text(selector.hash));
}

} // namespace

int dak_sdp_encode_file_transfer_id_attr(sdp_lib_context *context, media_description *description)
{
    if (!has_write_arguments(context, description))
        return 0;
    return encode_text(context, "a=file-transfer-id:", field_text(description->file_transfer_id));
}

int dak_sdp_encode_file_disposition_attr(sdp_lib_context *context, media_description *description)
{
    static constexpr const char *words[] = {"inline", "attachment", "render"};
    if (!has_write_arguments(context, description))
        return 0;
    const sdp_file_disposition &record = description->file_disposition;
    if (static_cast<uint8_t>(record.present) != 1)
        return 1;
    return encode_text(context, "a=file-disposition:",
                       record.disposition <= SDP_FILE_RENDER ? words[record.disposition] : "");
}

int dak_sdp_encode_file_date_attr(sdp_lib_context *context, media_description *description)
{
    if (!has_write_arguments(context, description))
        return 0;
    const sdp_file_date &date = description->file_date;
    return encode_date(context, "a=file-date:creation:\"", field_text(date.creation)) &&
           encode_date(context, "a=file-date:modification:\"", field_text(date.modification)) &&
           encode_date(context, "a=file-date:read:\"", field_text(date.read));
}

int dak_sdp_encode_file_icon_attr(sdp_lib_context *context, media_description *description)
{
    if (!has_write_arguments(context, description))
        return 0;
    return encode_text(context, "a=file-icon:cid:", field_text(description->file_icon));
}

int dak_sdp_encode_file_range_attr(sdp_lib_context *context, media_description *description)
{
    if (!has_write_arguments(context, description))
        return 0;
    sdp_line line(context);
    line.add("a=file-range:").add_signed(description->file_range.start);
    line.add('-').add_signed(description->file_range.stop);
    return write_attribute_line(line);
}

int dak_sdp_encode_file_selector_attr(sdp_lib_context *context, media_description *description, int index)
{
    if (!has_write_arguments(context, description))
        return 0;
    if (index < 0 || index >= SDP_MAX_FILE_SELECTORS) {
        DAK_LOG(" Invalid params \n");
        return 0;
    }
    const sdp_file_selector &selector = description->file_selectors[index];
    sdp_line line(context);
    line.add("a=file-selector");
    if (selector.empty != 1)
        add_items(line.add(':'), selector);
    return write_attribute_line(line);
}
