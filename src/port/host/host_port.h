/**
 * @file
 * The platform off Android: the functions of port.h over the C library. What a program may choose
 * is where log lines go and what happens at a failure report. Both choices are process-wide and
 * unguarded: make them before a second thread uses the library.
 */
#ifndef DAKSDP_PORT_HOST_HOST_PORT_H
#define DAKSDP_PORT_HOST_HOST_PORT_H

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Takes one log line.
 *
 * @param priority  the line's priority
 * @param text      the formatted line as the library worded it, valid during the call only
 * @param user      the pointer given with the sink
 */
typedef void (*dak_host_log_sink)(int priority, const char *text, void *user);

/**
 * Sends log lines to a sink. Lines go to stderr until then, ended with a newline where the library's text has
 * none.
 *
 * @param sink  called on the thread that logs; null restores stderr
 * @param user  handed to the sink
 */
void dak_host_set_log_sink(dak_host_log_sink sink, void *user);

/**
 * Learns of one failure report.
 *
 * @param user  the pointer given with the hook
 */
typedef void (*dak_host_assert_hook)(void *user);

/**
 * Sends failure reports to a hook. Without one they pass in silence: every failure also shows in the result
 * of the function that failed.
 *
 * @param hook  called on the thread that reports, and must return; null for none
 * @param user  handed to the hook
 */
void dak_host_set_assert_hook(dak_host_assert_hook hook, void *user);

#ifdef __cplusplus
}
#endif

#endif
