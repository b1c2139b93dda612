#include "util/report.hpp"

namespace dak {

#if defined(__GNUC__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-security"
#endif
void log_text(const char *text) { __android_log_print(6, nullptr, text); }
#if defined(__GNUC__)
#pragma GCC diagnostic pop
#endif

} // namespace dak
