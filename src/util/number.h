/**
 * @file
 * Numbers read from counted ranges, and written to bounded buffers.
 */
#ifndef DAKSDP_UTIL_NUMBER_H
#define DAKSDP_UTIL_NUMBER_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Modes of dak_atoi(); any value other than these two reads strict decimal. */
enum {
    DAK_ATOI_LENIENT = 100, /**< decimal digits up to LF, space, CR or "." */
    DAK_ATOI_HEX = 120      /**< hexadecimal digits */
};

/**
 * Reads an unsigned number of at most 31 bits.
 *
 * Mode 100 reads decimal digits up to LF, space, CR or "."; mode 120 hexadecimal digits; any other mode
 * decimal digits only. Another character fails, in mode 120 with an assertion report.
 * @param text counted text, read for at most `length` characters
 * @param mode 100, 120 or other
 * @param length characters to read; 0 yields the number 0
 * @param[out] out the number; after a failure the value in front of the offending character
 * @return 1, or 0 on an unexpected character or, with an assertion report, above 2147483647
 */
int dak_atoi(const char *text, int mode, uint32_t length, uint32_t *out);

/**
 * Reads a signed 64-bit decimal number. White space ends it.
 * @param text counted text, optionally led by "-"
 * @param length characters to read; 0, or "-" alone, yields the number 0
 * @param[out] out the number; 0 after a failure
 * @return 1, or 0 on an unexpected character or a value that does not fit
 */
int dak_atoi64(const char *text, uint32_t length, int64_t *out);

/**
 * Writes a signed 64-bit number in decimal.
 * @param value the number
 * @param[out] destination cleared over `size` characters, then the digits; empty after a failure
 * @param size characters of `destination`, terminator included
 * @return 1, or 0 for a null destination, a size of 0, or text that does not fit
 */
int dak_i64toa(int64_t value, char *destination, uint32_t size);

#ifdef __cplusplus
}
#endif

#endif
