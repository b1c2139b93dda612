/**
 * @file
 * Scanners that walk SDP text in place.
 *
 * A position and an end (one past the last character of the range) stand for a piece of text. Scanners
 * neither copy nor allocate; each gives a new position inside the same text. Blank is space or tab, a line
 * terminator is CR or LF, white is either; no locale takes part.
 */
#ifndef DAKSDP_UTIL_LINE_SCAN_H
#define DAKSDP_UTIL_LINE_SCAN_H

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Skips blanks.
 * @param position where to start; null is given back
 * @param end one past the last character
 * @return the first position that is not blank, or `end`; `position` itself when it is not below `end`
 */
const char *skip_whitespace(const char *position, const char *end);

/**
 * Skips up to white space.
 * @param position where to start; null is given back
 * @param end one past the last character
 * @return the first position that is white, or `end`; `position` itself when it is not below `end`
 */
const char *skip_to_whitespace(const char *position, const char *end);

/**
 * Skips blanks and line terminators.
 * @param position where to start; null is given back
 * @param end one past the last character
 * @return the first position that is not white, or `end`; `position` itself when it is not below `end`
 */
const char *skip_whitespace_and_line_term(const char *position, const char *end);

/**
 * Skips up to a line terminator.
 * @param position where to start; null is given back
 * @param end one past the last character
 * @return the first CR or LF, or `end`; `position` itself when it is not below `end`
 */
const char *skip_to_line_term(const char *position, const char *end);

/**
 * Finds the next line that is not blank. CR LF, LF and a lone CR all end a line; a last line without
 * terminator ends at `end`.
 * @param position where to start; null yields no line and null out pointers
 * @param end one past the last character
 * @param[out] line_start first character of the line that is not white
 * @param[out] line_end the line's terminator, or `end`
 * @return 1 if a line was found, else 0
 */
int get_next_line(const char *position, const char *end, const char **line_start, const char **line_end);

/**
 * Finds a character. The character at `end` is examined too, so `end` must be readable: callers pass a line's
 * terminator there, and a token without its delimiter then takes that terminator in and loses it to trimming.
 * @param position where to start
 * @param end the last position to examine
 * @param character what to look for
 * @return the character's position, or `end` plus one; null, with an assertion report, when `position` is
 *         null or above `end`
 */
const char *skip_to_char(const char *position, const char *end, char character);

#ifdef __cplusplus
}
#endif

#endif
