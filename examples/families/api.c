/* Text of the library: a literal, one unit of it, and a letter beyond ASCII. */
#include "print.h"

int main(void)
{
    const zu_wchar* pipe = ZU_W("Rohr \u00D8114");
    size_t length = 0;
    while (pipe[length] != ZU_W('\0'))
        ++length;
    printf("%s has %d units\n", utf8(pipe), (int)length);

    /* The library that is loaded, and the headers that this was compiled with. */
    int major = 0;
    if (sscanf(zu_version(), "%d", &major) == 1 && major == ZU_VERSION_MAJOR)
        printf("library and headers belong together\n");
    return 0;
}
