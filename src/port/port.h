/**
 * @file
 * What the library asks of the platform. The library imports these functions and never defines
 * them: on Android the platform brings them, elsewhere a program links the stand-in of port/host
 * or one of its own. All of them may be called from any thread. dak_strtok() is part of the
 * platform; this release splits text by itself and does not import it.
 */
#ifndef DAKSDP_PORT_PORT_H
#define DAKSDP_PORT_PORT_H

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Has the compiler check the arguments of a function against its format, as it does for printf. */
#if defined(__GNUC__)
#define DAK_PRINTF_LIKE(format_index, first_argument) \
    __attribute__((__format__(__printf__, format_index, first_argument)))
#else
#define DAK_PRINTF_LIKE(format_index, first_argument)
#endif

/** Tells the compiler that a call is unlikely, so that what leads to it stands out of the way. */
#if defined(__GNUC__)
#define DAK_RARELY_CALLED __attribute__((__cold__))
#else
#define DAK_RARELY_CALLED
#endif

/** The log priority of an error, the only one that the library uses. */
#define DAK_LOG_ERROR 6

/** The address family that platInetPton takes for IPv6, whatever the host's own number for it. */
#define DAK_FAMILY_IPV6 10

/**
 * Takes a block of memory. Its content is undefined.
 *
 * @param size  bytes wanted
 * @return      the block, owned by the caller and returned with dak_free; null when there is none
 */
void *dak_malloc(size_t size);

/**
 * Gives a block of dak_malloc back.
 *
 * @param block  the block; null is allowed and does nothing
 */
void dak_free(void *block);

/**
 * Takes the next token of a text, as a call of a series that keeps its place in `save`. Runs of delimiters
 * count as one; the delimiter behind a token is overwritten with a NUL.
 *
 * @param text        the text at the first call, which is written to; null at the following ones
 * @param delimiters  the characters that end a token
 * @param save        the caller's place in the text; null or at the text's NUL once it ran out
 * @return            the token, inside the text; null when there is none left
 */
char *dak_strtok(char *text, const char *delimiters, char **save);

/**
 * Reports that an operation failed. It only reports: control returns to the caller, which then returns its
 * own failure value.
 */
void dak_assert_failed(void) DAK_RARELY_CALLED;

/**
 * Converts an address from text to its binary form in network byte order.
 *
 * @param family       DAK_FAMILY_IPV6
 * @param text         the address, NUL-terminated
 * @param destination  takes the address: 16 bytes for IPv6
 * @return             1 when converted; anything else when the text is no address of that family
 */
int platInetPton(int family, const char *text, void *destination);

/**
 * Writes one line to the platform's log.
 *
 * @param priority  how grave it is: DAK_LOG_ERROR
 * @param tag       whose line it is; null for none
 * @param format    as printf has it, with its arguments behind it
 * @return          non-negative, or a negative number when the line was not logged
 */
int __android_log_print(int priority, const char *tag, const char *format, ...)
    DAK_PRINTF_LIKE(3, 4) DAK_RARELY_CALLED;

#ifdef __cplusplus
}
#endif

#endif
