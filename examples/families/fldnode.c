/* A single field, changed by text and shown as text. */
#include "print.h"

#include <stdlib.h>

int main(void)
{
    FldNode* size = zu_FldList_newReal(ZU_W("size"), 114.3);
    zu_FldNode_updateFldValue(size, ZU_W("60.3"));

    zu_wchar* text = zu_FldNode_getFldValue(size);
    printf("%s = %s\n", utf8(size->name), utf8(text));

    free(text); /* the runtime's own block, unlike all others */
    zu_FldList_destroyNode(size);
    return 0;
}
