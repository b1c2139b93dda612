// What the writers and readers of the attribute families share.
#ifndef DAKSDP_ATTR_ATTRIBUTE_LINE_HPP
#define DAKSDP_ATTR_ATTRIBUTE_LINE_HPP

#include "sdp/document_record.h"
#include "sdp/media_description_record.h"
#include "sdp/text_buffer.hpp"
#include "util/report.hpp"

namespace dak {

// Writes a line and its ending; reports a line of 200 characters or more and a full text buffer.
int write_attribute_line(sdp_line &line, text_range ending = "\r\n");

// Checks the arguments of a writer, with its log line.
int has_write_arguments(const sdp_lib_context *context, const media_description *description);

// Checks the arguments of a reader, with its log line.
inline bool has_read_arguments(const media_description *description, const char *line_start,
                               const char *line_end)
{
    if (description != nullptr && line_start != nullptr && line_end != nullptr)
        return true;
    DAK_LOG("NULL Pararms sent \n");
    return false;
}

bool is_message_session(const media_description &description);

// Reads the value behind the colon of an attribute, up to the end of the line; a missing value is reported.
bool read_attribute_value(const char *line_start, const char *line_end, text_range &value);

// Logs that a line was skipped because of its section's profile.
int skip_for_profile(const media_description &description);

// The frame of a reader of message-session lines: checks its arguments, skips other profiles, and hands the
// value over.
template <typename Store>
int read_message_line(media_description *description, const char *line_start, const char *line_end,
                      Store store)
{
    if (!has_read_arguments(description, line_start, line_end))
        return 0;
    if (!is_message_session(*description))
        return skip_for_profile(*description);
    text_range value(line_start, line_start);
    if (!read_attribute_value(line_start, line_end, value))
        return 0;
    store(*description, value);
    return 1;
}

// The setters' answer to a null description.
inline bool is_description(const media_description *description)
{
    if (description == nullptr)
        DAK_LOG("null params \n");
    return description != nullptr;
}

template <typename Record>
int store_record(media_description *description, Record media_description::*field, const Record &record)
{
    if (!is_description(description))
        return 0;
    description->*field = record;
    return 1;
}

// The getters' answer to a null description.
void report_missing_description();

// Copies a record out; all zero for a null description.
template <typename Record>
void read_record(Record *out, const media_description *description, Record media_description::*field)
{
    if (out == nullptr) {
        dak_assert_failed();
        return;
    }
    if (description != nullptr) {
        *out = description->*field;
        return;
    }
    *out = {};
    report_missing_description();
}

} // namespace dak

#endif
