/**
 * @file
 * Size-limited copies and comparison of text.
 */
#ifndef DAKSDP_UTIL_TEXT_H
#define DAKSDP_UTIL_TEXT_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Makes a terminated text of a counted one and removes its trailing white characters.
 * @param[out] destination 200 characters
 * @param source counted text; it ends early at a NUL
 * @param length characters of `source`
 * @return 1, or 0 with an assertion report for null, a length of 0, or, with a log line too, a length of 200
 *         or more
 */
int create_string(char *destination, const char *source, uint32_t length);

/**
 * Copies with a size limit; the result is terminated whenever `size` is above 0.
 * @param[out] destination `size` characters
 * @param source terminated text
 * @param size characters of `destination`, terminator included
 * @return length of `source`: `size` or more means that the copy was cut. 0, with an assertion report, for
 *         null.
 */
size_t dak_strlcpy(char *destination, const char *source, size_t size);

/**
 * Appends with a size limit.
 * @param[in,out] destination terminated text in `size` characters
 * @param source terminated text
 * @param size characters of `destination`, terminator included
 * @return length that the whole result would have had: `size` or more means that it was cut. 0, with an
 *         assertion report, for null.
 */
size_t dak_strlcat(char *destination, const char *source, size_t size);

/**
 * Compares two texts, ignoring the case of the letters a to z. Works on two heap copies.
 * @param a terminated text
 * @param b terminated text
 * @return 0 when equal, else the sign of the byte comparison; 1, with an assertion report, for null or when
 *         memory runs out
 */
int dak_stricmp(const char *a, const char *b);

#ifdef __cplusplus
}
#endif

#endif
