/**
 * @file
 * Session-level lines: stored by type, one whole text each, read back by type and position.
 */
#ifndef DAKSDP_SDP_SESSION_VALUES_H
#define DAKSDP_SDP_SESSION_VALUES_H

#include "sdp/document_record.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Stores a session-level line as given, behind those of its type.
 * @param context the context
 * @param selector 0 encoder document, 1 parser document
 * @param tag line type with its equals sign, such as "a="; case is ignored
 * @param value terminated value of at most 199 characters
 * @return 1; 0, with an assertion report, for null, another selector, an unknown type, no memory or, with a
 *         log line too, too long a value. Too long a further line of a type is kept, cut to 199 characters.
 */
int set_session_value(sdp_lib_context *context, int selector, const char *tag, const char *value);

/**
 * Stores a session-level line in a document.
 * @param document the document
 * @param tag as for set_session_value()
 * @param value as for set_session_value()
 * @return as set_session_value()
 */
int set_session_value_by_sdp_container(sdp_info_container *document, const char *tag, const char *value);

/**
 * Stores one received line.
 * @param document the document
 * @param line_start first character of the line; blanks are skipped
 * @param line_end one past its last character
 * @return 1 when stored; 0 for a line that begins "m="; 0, with an assertion report, for null, an unknown
 *         line type, a value of more than 198 characters or no memory
 */
int parse_session_value(sdp_info_container *document, const char *line_start, const char *line_end);

/**
 * Reads the first value of a type.
 * @param context the context
 * @param selector 0 encoder document, 1 parser document
 * @param tag line type with its equals sign; case counts
 * @return the value, owned by the context; null when there is none and, with an assertion report, for null,
 *         another selector or an unknown type
 */
const char *get_session_value(sdp_lib_context *context, int selector, const char *tag);

/**
 * Reads the value of a type at a position.
 * @param context the context
 * @param selector 0 encoder document, 1 parser document
 * @param tag line type with its equals sign; case counts
 * @param position 0 for the first line of the type
 * @return as get_session_value()
 */
const char *get_particular_index_of_session_value(sdp_lib_context *context, int selector, const char *tag,
                                                  int position);

/**
 * Reads the value of a type at a position of a document.
 * @param document the document
 * @param tag line type with its equals sign; leading blanks are skipped, case counts
 * @param position 0 for the first line of the type
 * @return the value, owned by the document; null when there is none and, with an assertion report, for null
 *         or an unknown type
 */
const char *get_seesion_value_by_sdp_container(sdp_info_container *document, const char *tag, int position);

/**
 * Walks a list of further values.
 * @param head first node
 * @param position 1 for the head, 2 for the node behind it, ...
 * @return the node; null when the list ends before it or the position is 0 or negative. A null head gives
 *         null.
 */
session_value *dak_sdp_traverse_list(session_value *head, int position);

/**
 * Reads a session attribute by name.
 * @param context the context
 * @param selector 0 encoder document, 1 parser document
 * @param name the name; it matches as a case-sensitive prefix, so "send" finds "sendrecv" too
 * @param[out] destination 256 characters for the text behind the first colon; unwritten when there is none
 * @return 1 if an attribute matched; 0 if none and, with an assertion report, for null or another selector
 */
int get_session_attribute_value(sdp_lib_context *context, int selector, const char *name, char *destination);

#ifdef __cplusplus
}
#endif

#endif
