// Reporting: one log macro and one way to fail.
#ifndef DAKSDP_UTIL_REPORT_HPP
#define DAKSDP_UTIL_REPORT_HPP

#include "port/port.h"

#include <stddef.h>

// A macro, so that the compiler checks each format against its arguments.
#define DAK_LOG(...) __android_log_print(6, nullptr, __VA_ARGS__)

namespace dak {

// Reports an assertion and gives the failure value of the functions that return 1 or 0.
inline int fail()
{
    dak_assert_failed();
    return 0;
}

// Logs a text of the library's own that holds no conversion, such as one from a table.
void log_text(const char *text);

inline decltype(nullptr) fail_null()
{
    dak_assert_failed();
    return nullptr;
}

} // namespace dak

#endif
