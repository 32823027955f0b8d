/* Texts for the user. Without a host they stay English, laid out as their numbers say. */
#include "print.h"

int main(void)
{
    printf("%s", utf8(zu_Msg("Unable to open the table", "TOOL", 5)));
    printf("[%s]\n", utf8(zu_Msg_pad(ZU_W("Size"), ZU_W("TOOL"), 1, 8)));

    MsgList* texts = zu_Msg_mlt(ZU_W("open"), ZU_W("Open a table"), ZU_W("TOOL"), 1, /* key, text, section, number */
                                ZU_W("close"), ZU_W("Close it"), ZU_W("TOOL"), 1, NULL);
    printf("%s\n%s\n", utf8(zu_Msg_find(texts, ZU_W("open"))), utf8(zu_Msg_find(texts, ZU_W("print"))));
    zu_MsgList_destroy(texts);
    return 0;
}
