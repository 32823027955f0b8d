/* A drawing is saved without its handlers doing anything about it. */
#include "print.h"

static void onSave(const zu_wchar* drawing)
{
    printf("%s\n", zu_Drawing_IsSaveIgnored(drawing) ? "ignored" : "handled");
}

int main(void)
{
    const zu_wchar* drawing = ZU_W("D:\\jobs\\plan.dwg");
    zu_Drawing_IgnoreSaveEvents(drawing, 1);
    onSave(drawing);
    zu_Drawing_IgnoreSaveEvents(drawing, 0);
    onSave(drawing);
    return 0;
}
