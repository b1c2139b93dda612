// The platform that benchmarks run on, apart from memory: its log takes lines and does nothing, so that what
// is measured is the library.

#include <arpa/inet.h>

#include <cstring>

#include "port/port.h"

extern "C" {

char *dak_strtok(char *text, const char *delimiters, char **save) { return strtok_r(text, delimiters, save); }

void dak_assert_failed(void) {}

int platInetPton(int family, const char *text, void *destination)
{
    return inet_pton(family == DAK_FAMILY_IPV6 ? AF_INET6 : family, text, destination);
}

int __android_log_print(int, const char *, const char *, ...) { return 0; }

} // extern "C"
