#include "zu_TreeNode.h"

#include "containers/strlist.h"
#include "frame/trace.h"
#include "zu_Str.h"

#include <algorithm>
#include <cstddef>

// Hosts read the record directly.
static_assert(offsetof(TreeNode, name) == 0 && offsetof(TreeNode, data) == 8 && offsetof(TreeNode, nextSibling) == 16 &&
              offsetof(TreeNode, previousSibling) == 24 && offsetof(TreeNode, firstChild) == 32 &&
              offsetof(TreeNode, parent) == 40);

// All walks follow the links instead of recurring: trees may be deeper than the stack.
namespace {

using namespace zu;

TreeNode* lastChild(const TreeNode* node)
{
    TreeNode* child = node->firstChild;
    while (child != nullptr && child->nextSibling != nullptr)
        child = child->nextSibling;
    return child;
}

// The first node below this one, or itself, that is visited in post-order.
TreeNode* firstLeaf(TreeNode* node)
{
    while (node->firstChild != nullptr)
        node = node->firstChild;
    return node;
}

// The first one to be destroyed.
TreeNode* lastLeaf(TreeNode* node)
{
    for (TreeNode* child = lastChild(node); child != nullptr; child = lastChild(node))
        node = child;
    return node;
}

// The node after all below this one in pre-order; null at the end of what lies below root.
TreeNode* nextBeside(TreeNode* node, const TreeNode* root)
{
    while (node != nullptr && node != root && node->nextSibling == nullptr)
        node = node->parent;
    return node == nullptr || node == root ? nullptr : node->nextSibling;
}

// A node without children cannot lie above another one, so most insertions need not climb.
bool isAbove(const TreeNode* node, const TreeNode* other)
{
    if (node == other)
        return true;
    if (node->firstChild == nullptr)
        return false;
    while (other != nullptr && other != node)
        other = other->parent;
    return other == node;
}

} // namespace

TreeNode* zu_TreeNode_create(const zu_wchar* name, void* data)
{
    ZU_TRACE(treeList);
    auto* const node = static_cast<TreeNode*>(zu_Calloc(1, sizeof(TreeNode)));
    if (node != nullptr) {
        node->name = zu_Str_dup(name);
        node->data = data;
    }
    return node;
}

int32_t zu_TreeNode_destroy(TreeNode* node, zu_TreeNodeFreeCallback freeData)
{
    ZU_TRACE(treeList);
    if (node == nullptr)
        return 0;
    for (TreeNode* doomed = lastLeaf(node); doomed != node;) {
        TreeNode* const previous = doomed->previousSibling;
        TreeNode* const parent = doomed->parent;
        // Fails for links that are no tree only.
        if (zu_TreeNode_delCurr(doomed, freeData) == 0 || (previous == nullptr && parent == nullptr))
            return 0;
        doomed = previous == nullptr ? parent : lastLeaf(previous);
    }
    return zu_TreeNode_delCurr(node, freeData);
}

int32_t zu_TreeNode_delCurr(TreeNode* node, zu_TreeNodeFreeCallback freeData)
{
    ZU_TRACE(treeList);
    if (node == nullptr || node->firstChild != nullptr)
        return 0;
    if (node->previousSibling != nullptr)
        node->previousSibling->nextSibling = node->nextSibling;
    if (node->nextSibling != nullptr)
        node->nextSibling->previousSibling = node->previousSibling;
    if (node->parent != nullptr && node->parent->firstChild == node)
        node->parent->firstChild = node->nextSibling;
    if (freeData != nullptr)
        freeData(node->data);
    zu_Free(node->name);
    zu_Free(node);
    return 1;
}

int32_t zu_TreeNode_insChild(TreeNode* parent, TreeNode* child)
{
    ZU_TRACE(treeList);
    // A node in two places would be destroyed twice; a node above itself, never.
    if (parent == nullptr || child == nullptr || child->parent != nullptr || isAbove(child, parent))
        return 0;
    TreeNode* const last = lastChild(parent);
    (last == nullptr ? parent->firstChild : last->nextSibling) = child;
    child->previousSibling = last;
    child->parent = parent;
    return 1;
}

int32_t zu_TreeNode_setName(TreeNode* node, const zu_wchar* name)
{
    ZU_TRACE(treeList);
    if (node == nullptr)
        return 0;
    zu_wchar* const copy = zu_Str_dup(name);
    zu_Free(node->name);
    node->name = copy;
    return 1;
}

zu_wchar* zu_TreeNode_getName(TreeNode* node)
{
    ZU_TRACE(treeList);
    return node == nullptr ? nullptr : node->name;
}

int32_t zu_TreeNode_setData(TreeNode* node, void* data)
{
    ZU_TRACE(treeList);
    if (node != nullptr)
        node->data = data;
    return 0; // also when it was stored: meant
}

void* zu_TreeNode_getData(TreeNode* node)
{
    ZU_TRACE(treeList);
    return node == nullptr ? nullptr : node->data;
}

int32_t zu_TreeNode_setRoot(TreeNode* node, void* data)
{
    ZU_TRACE(treeList);
    // What is called the root lies in the data slot.
    if (node == nullptr || node->data != nullptr || data == nullptr)
        return 0;
    node->data = data;
    return 1;
}

void* zu_TreeNode_getRoot(TreeNode* node)
{
    ZU_TRACE(treeList);
    return node == nullptr ? nullptr : node->data;
}

TreeNode* zu_TreeNode_getParent(TreeNode* node)
{
    ZU_TRACE(treeList);
    return node == nullptr ? nullptr : node->parent;
}

TreeNode* zu_TreeNode_getFirstChild(TreeNode* node)
{
    ZU_TRACE(treeList);
    return node == nullptr ? nullptr : node->firstChild;
}

TreeNode* zu_TreeNode_getLastChild(TreeNode* node)
{
    ZU_TRACE(treeList);
    return node == nullptr ? nullptr : lastChild(node);
}

TreeNode* zu_TreeNode_getNextSibling(TreeNode* node)
{
    ZU_TRACE(treeList);
    return node == nullptr ? nullptr : node->nextSibling;
}

TreeNode* zu_TreeNode_getPreviousSibling(TreeNode* node)
{
    ZU_TRACE(treeList);
    return node == nullptr ? nullptr : node->previousSibling;
}

uint32_t zu_TreeNode_getChildCount(TreeNode* node, const zu_wchar* name)
{
    ZU_TRACE(treeList);
    uint32_t count = 0;
    const TreeNode* child = node == nullptr ? nullptr : node->firstChild;
    for (; child != nullptr; child = child->nextSibling)
        count += name == nullptr || zu_Str_cmpi(child->name, name) == 0;
    return count;
}

TreeNode* zu_TreeNode_getChildByName(TreeNode* node, const zu_wchar* name, uint32_t occurrence)
{
    ZU_TRACE(treeList);
    uint32_t left = std::max(occurrence, 1u);
    TreeNode* child = node == nullptr ? nullptr : node->firstChild;
    for (; child != nullptr; child = child->nextSibling) {
        if (zu_Str_cmpi(child->name, name) == 0 && --left == 0)
            return child;
    }
    return nullptr;
}

TreeNode* zu_TreeNode_search(TreeNode* node, const zu_wchar* path, uint32_t occurrence)
{
    ZU_TRACE(treeList);
    StrList* const names = zu_StrList_fromDelimitedString(path, ZU_W("."));
    if (names == nullptr)
        return nullptr;
    for (const LnkNode* name = names->first; name != nullptr && node != nullptr; name = name->next)
        node = zu_TreeNode_getChildByName(node, stringOf(name).data(), name == names->last ? occurrence : 1);
    zu_StrList_destroy(names);
    return node;
}

TreeNode* zu_TreeNode_next(TreeNode* node)
{
    ZU_TRACE(treeList);
    return node != nullptr && node->firstChild != nullptr ? node->firstChild : nextBeside(node, nullptr);
}

TreeNode* zu_TreeNode_visit(TreeNode* node, void* context, zu_TreeNodeVisitCallback visit, int32_t order)
{
    ZU_TRACE(treeList);
    switch (order) {
    case 0:
    case 1: return zu_TreeNode_visitPre(node, context, visit);
    case 2: return zu_TreeNode_visitPost(node, context, visit);
    default: return nullptr;
    }
}

TreeNode* zu_TreeNode_visitPre(TreeNode* node, void* context, zu_TreeNodeVisitCallback visit)
{
    ZU_TRACE(treeList);
    if (visit == nullptr)
        return nullptr;
    for (TreeNode* visited = node; visited != nullptr;) {
        if (visit(context, visited->data) == 1)
            return visited;
        visited = visited->firstChild != nullptr ? visited->firstChild : nextBeside(visited, node);
    }
    return nullptr;
}

TreeNode* zu_TreeNode_visitPost(TreeNode* node, void* context, zu_TreeNodeVisitCallback visit)
{
    ZU_TRACE(treeList);
    if (node == nullptr || visit == nullptr)
        return nullptr;
    for (TreeNode* visited = firstLeaf(node); visited != nullptr;) {
        // Known before the visit, which may destroy the node.
        TreeNode* next = nullptr;
        if (visited != node)
            next = visited->nextSibling != nullptr ? firstLeaf(visited->nextSibling) : visited->parent;
        if (visit(context, visited->data) == 1)
            return visited;
        visited = next;
    }
    return nullptr;
}
