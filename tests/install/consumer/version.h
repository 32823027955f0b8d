// Whether the headers that a program was compiled with and the library that it runs with are of one version.
#ifndef CONSUMER_VERSION_H
#define CONSUMER_VERSION_H

#include <stdio.h>
#include <string.h>
#include <zu.h>

static inline int isVersionOfHeaders(void)
{
    char headers[64];
    snprintf(headers, sizeof headers, "%d.%d.%d", ZU_VERSION_MAJOR, ZU_VERSION_MINOR, ZU_VERSION_PATCH);
    if (strcmp(headers, zu_version()) == 0)
        return 1;
    fprintf(stderr, "headers of %s, library of %s\n", headers, zu_version());
    return 0;
}

#endif
