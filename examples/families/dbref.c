/* What stands behind a handle and a tag. The table itself is not opened here. */
#include "print.h"

int main(void)
{
    const int32_t handle = zu_DbRef_add(ZU_W("D:\\plant\\pipes.db3"));
    const int32_t tag = zu_DbTagRef_add(handle, ZU_W("bytag"), ZU_W("TAG"));

    const DbRefNode* table = zu_DbRef_sel(handle);
    printf("%d: %s, %s\n", table->number, utf8(table->path), table->statement == NULL ? "not read" : "read");
    const DbTagRefNode* entry = zu_DbTagRef_selNdx(tag);
    printf("%d: %s of table %d\n", entry->number, utf8(entry->expression), entry->handle);

    zu_DbTagRef_del(tag);
    zu_DbRef_del(handle);
    return 0;
}
