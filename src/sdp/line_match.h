/**
 * @file
 * Recognising what a line begins with.
 */
#ifndef DAKSDP_SDP_LINE_MATCH_H
#define DAKSDP_SDP_LINE_MATCH_H

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Tells whether a line begins with a tag, case-sensitively.
 * @param tag terminated tag such as "a=fmtp"
 * @param line terminated text
 * @return 1 or 0; 0, with an assertion report, for null
 */
int find_tag(const char *tag, const char *line);

/**
 * Tells whether a text occurs in the first 255 characters of another.
 * @param needle terminated text to find
 * @param text terminated text to search
 * @return 1 or 0; 0, with an assertion report, for null
 */
int find_string(const char *needle, const char *text);

/**
 * Tells whether a media section begins at a position.
 * @param position start of a line
 * @param end one past the last character
 * @return 1 when the text there begins "m=", else 0; 0, with an assertion report, for null
 */
int find_media_description(const char *position, const char *end);

#ifdef __cplusplus
}
#endif

#endif
