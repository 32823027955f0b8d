// The first program of the README, and a list.
#include "version.h"

#include <math.h>
#include <stdio.h>
#include <zu.h>

static int readsFields(void)
{
    FldList* pipe = zu_FldList_create(ZU_W("TAG"), ZU_FLD_CHAR, ZU_W("P-101"), ZU_W("SIZE"), ZU_FLD_REAL, 114.3, NULL);
    double size = 0.0;
    zu_wchar tag[9] = {0};
    int ok = zu_FldList_getReal(pipe, ZU_W("size"), &size) == ZU_FLD_OK && fabs(size - 114.3) < 1e-9;
    ok = ok && zu_FldList_getChar(pipe, ZU_W("tag"), tag, 8) == ZU_FLD_OK && tag[0] == ZU_W('P') && tag[5] == 0;
    printf("%.1f mm\n", size);
    zu_FldList_destroy(pipe);
    return ok;
}

static int countsAndWalks(void)
{
    int lengths[] = {300, 500, 800};
    int sum = 0;
    LnkList* list = zu_LnkList_create(&lengths[0], &lengths[1], &lengths[2], (void*)NULL);
    for (zu_LnkList_start(list); !zu_LnkList_eol(list); zu_LnkList_next(list))
        sum += *(int*)zu_LnkList_getCurr(list);
    const int ok = list != NULL && list->count == 3 && sum == 1600;
    zu_LnkList_destroy(list, NULL);
    return ok;
}

int main(void)
{
    const int version = isVersionOfHeaders();
    const int fields = readsFields();
    const int lists = countsAndWalks();
    if (!version || !fields || !lists)
        fprintf(stderr, "version %d, fields %d, lists %d\n", version, fields, lists);
    return version && fields && lists ? 0 : 1;
}
