/** @file zu_TreeNode.h
 *  @ingroup containers
 *  A tree of named nodes, each with one untyped data pointer. A tree is known by its root node; children keep the order
 *  in which they were inserted.
 *
 *      TreeNode* root = zu_TreeNode_create(NULL, NULL);
 *      TreeNode* pipes = zu_TreeNode_create(ZU_W("pipes"), NULL);
 *      zu_TreeNode_insChild(root, pipes);
 *      zu_TreeNode_insChild(pipes, zu_TreeNode_create(ZU_W("P-100"), pipe));
 *      pipe = zu_TreeNode_getData(zu_TreeNode_search(root, ZU_W("pipes.p-100"), 1));
 *      zu_TreeNode_destroy(root, NULL);
 *
 *  Names are compared ignoring case, by zu_Str_cmpi, for which a node without a name has the empty name. The tree never
 *  owns the data: operations that drop nodes take an optional callback that frees them. Trees may be of any depth.
 *
 *  @par Example
 *  @include treenode.c
 */
#ifndef ZU_TREENODE_H
#define ZU_TREENODE_H

#include "zu_Api.h"

ZU_EXTERN_C_BEGIN

/** A node; read it freely. */
typedef struct TreeNode
{
    zu_wchar* name;                   /**< owned by the node; may be null */
    void* data;                       /**< may be null */
    struct TreeNode* nextSibling;     /**< null for the last child */
    struct TreeNode* previousSibling; /**< null for the first child */
    struct TreeNode* firstChild;      /**< null for a leaf */
    struct TreeNode* parent;          /**< null for a root */
} TreeNode;

/** Frees the data of a node; called for null data too. The result is ignored. */
typedef int32_t (*zu_TreeNodeFreeCallback)(void* data);
/** Looks at the data of a node. Exactly 1 stops the walk; any other result lets it go on. */
typedef int32_t (*zu_TreeNodeVisitCallback)(void* context, void* data);

/** Makes a node.
 *  @param name  copied; may be null.
 *  @return a new node, released with zu_TreeNode_destroy; null without memory. Without memory for the name only, it has
 *          none. */
ZU_API TreeNode* zu_TreeNode_create(const zu_wchar* name, void* data);

/** Destroys a node with all below it, children before their parent and from the last to the first.
 *  @param freeData  called for the data of each node; may be null.
 *  @return 1, or 0 for null. */
ZU_API int32_t zu_TreeNode_destroy(TreeNode* node, zu_TreeNodeFreeCallback freeData);

/** Takes a leaf out of its tree and destroys it.
 *  @param freeData  called for its data; may be null.
 *  @return 1; 0 for null and for a node that has children. */
ZU_API int32_t zu_TreeNode_delCurr(TreeNode* node, zu_TreeNodeFreeCallback freeData);

/** Appends a child, which may have children of its own. Takes as long as the parent has children.
 *  @return 1; 0 when either is null, and for a child that already has a parent or has the parent below it: nothing
 *          changes then. */
ZU_API int32_t zu_TreeNode_insChild(TreeNode* parent, TreeNode* child);

/** Replaces the name by a copy of name, which may be null. Without memory the node has no name afterwards.
 *  @return 1, or 0 for a null node. */
ZU_API int32_t zu_TreeNode_setName(TreeNode* node, const zu_wchar* name);

/** @return the name itself, owned by the node; null without one. */
ZU_API zu_wchar* zu_TreeNode_getName(TreeNode* node);

/** Replaces the data. @return 0 always. */
ZU_API int32_t zu_TreeNode_setData(TreeNode* node, void* data);

/** @return the data, null for a null node. */
ZU_API void* zu_TreeNode_getData(TreeNode* node);

/** Stores data in a node that has none.
 *  @return 1 when it was stored; 0 for a node that has data, for null data and a null node. */
ZU_API int32_t zu_TreeNode_setRoot(TreeNode* node, void* data);

/** The data: the counterpart of zu_TreeNode_setRoot. @return as zu_TreeNode_getData. */
ZU_API void* zu_TreeNode_getRoot(TreeNode* node);

/** @return the parent; null for a root and for null. */
ZU_API TreeNode* zu_TreeNode_getParent(TreeNode* node);
/** @return the first child, null without children. */
ZU_API TreeNode* zu_TreeNode_getFirstChild(TreeNode* node);
/** @return the last child, null without children. */
ZU_API TreeNode* zu_TreeNode_getLastChild(TreeNode* node);
/** @return the next child of the parent, null for the last one. */
ZU_API TreeNode* zu_TreeNode_getNextSibling(TreeNode* node);
/** @return the previous child of the parent, null for the first one. */
ZU_API TreeNode* zu_TreeNode_getPreviousSibling(TreeNode* node);

/** @param name  counts the children of that name only; null counts all.
 *  @return the number of children. */
ZU_API uint32_t zu_TreeNode_getChildCount(TreeNode* node, const zu_wchar* name);

/** @param name        null finds the children without a name or with an empty one.
 *  @param occurrence  1 for the first child of that name, 2 for the second; 0 counts as 1.
 *  @return the child, or null. */
ZU_API TreeNode* zu_TreeNode_getChildByName(TreeNode* node, const zu_wchar* name, uint32_t occurrence);

/** Looks for a node by its path, names with dots between them, from the children of node on.
 *
 *  Runs of dots count as one; blanks around the names do not count. On the way the first child of each name is taken.
 *  @param occurrence  for the last name, as for zu_TreeNode_getChildByName.
 *  @return the node; null when there is none, for a path without names, and without memory. */
ZU_API TreeNode* zu_TreeNode_search(TreeNode* node, const zu_wchar* path, uint32_t occurrence);

/** The next node in pre-order: the first child, else the next sibling of the node or of the nearest ancestor that has
 *  one. A walk is not limited to the node where it began: it goes on to that node's siblings.
 *  @return the node, null at the end of the tree. */
ZU_API TreeNode* zu_TreeNode_next(TreeNode* node);

/** Visits a node and all below it.
 *  @param order  0 and 1 as zu_TreeNode_visitPre, 2 as zu_TreeNode_visitPost; any other visits nothing.
 *  @return the node whose visit returned 1, or null. */
ZU_API TreeNode* zu_TreeNode_visit(TreeNode* node, void* context, zu_TreeNodeVisitCallback visit, int32_t order);

/** Visits a node and then its children in order, each with all below it.
 *  @return the node whose visit returned 1, or null; null also for a null node or callback. */
ZU_API TreeNode* zu_TreeNode_visitPre(TreeNode* node, void* context, zu_TreeNodeVisitCallback visit);

/** Visits the children in order, each with all below it, and then the node itself.
 *  @return as zu_TreeNode_visitPre. */
ZU_API TreeNode* zu_TreeNode_visitPost(TreeNode* node, void* context, zu_TreeNodeVisitCallback visit);

ZU_EXTERN_C_END

#endif
