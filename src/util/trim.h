/**
 * @file
 * Trimming of terminated text in place. Blanks, CR and LF count as white.
 */
#ifndef DAKSDP_UTIL_TRIM_H
#define DAKSDP_UTIL_TRIM_H

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Removes leading white characters.
 * @param string terminated text in a buffer of 200 characters. Text that would still be 200 characters or
 *         longer is cut to 199, with a log line and an assertion report.
 * @return length of the text behind the white characters, before any cut; 0, with an assertion report, for
 *         null
 */
int dak_remove_leading_space(char *string);

/**
 * Removes trailing white characters; text of nothing else becomes empty.
 * @param string terminated text; null is reported as an assertion
 */
void dak_remove_trailing_space(char *string);

/**
 * Removes leading, then trailing white characters.
 * @param string as for dak_remove_leading_space()
 */
void dak_remove_both_space(char *string);

#ifdef __cplusplus
}
#endif

#endif
