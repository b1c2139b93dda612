/* A platform of the program's own: the six functions of port/port.h in C11. */

#include "port/port.h"

#include <arpa/inet.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

void *dak_malloc(size_t size) { return malloc(size); }

void dak_free(void *block) { free(block); }

char *dak_strtok(char *text, const char *delimiters, char **save)
{
    char *token = text != NULL ? text : *save;
    if (token == NULL)
        return NULL;
    token += strspn(token, delimiters);
    *save = token + strcspn(token, delimiters);
    if (*save == token)
        return NULL;
    if (**save != '\0')
        *(*save)++ = '\0';
    return token;
}

void dak_assert_failed(void) {}

int platInetPton(int family, const char *text, void *destination)
{
    return inet_pton(family == DAK_FAMILY_IPV6 ? AF_INET6 : family, text, destination);
}

int __android_log_print(int priority, const char *tag, const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    const int written = vfprintf(stderr, format, arguments);
    va_end(arguments);
    (void)priority, (void)tag;
    return written;
}
