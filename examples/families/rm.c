/* One part of the host sets the callback, another one calls it. */
#include "print.h"

static int32_t track(void* a, void* b, void* c, void* d)
{
    (void)b;
    (void)c;
    (void)d;
    printf("called by %s\n", (const char*)a);
    return 7;
}

int main(void)
{
    char name[] = "import";
    zu_RM_setFuncTrackObject(track);
    printf("%d\n", zu_RM_callFuncTrackObject(name, NULL, NULL, NULL));

    zu_RM_setFuncTrackObject(NULL);
    printf("%d\n", zu_RM_callFuncTrackObject(name, NULL, NULL, NULL));
    return 0;
}
