/* A tree of named nodes, a node by its path, and a walk over all of it. */
#include "print.h"

int main(void)
{
    double size = 114.3;
    TreeNode* plant = zu_TreeNode_create(ZU_W("plant"), NULL);
    TreeNode* pipes = zu_TreeNode_create(ZU_W("pipes"), NULL);
    zu_TreeNode_insChild(plant, pipes);
    zu_TreeNode_insChild(pipes, zu_TreeNode_create(ZU_W("P-101"), &size));
    zu_TreeNode_insChild(plant, zu_TreeNode_create(ZU_W("pumps"), NULL));

    TreeNode* found = zu_TreeNode_search(plant, ZU_W("pipes.p-101"), 1);
    printf("%s: %.1f\n", utf8(zu_TreeNode_getName(found)), *(const double*)zu_TreeNode_getData(found));

    for (TreeNode* node = plant; node != NULL; node = zu_TreeNode_next(node))
        printf("%s, %u below\n", utf8(zu_TreeNode_getName(node)), zu_TreeNode_getChildCount(node, NULL));

    zu_TreeNode_destroy(plant, NULL);
    return 0;
}
