#include "support/memory.h"
#include "support/wide.h"
#include "zu_Memory.h"
#include "zu_TreeNode.h"

#include <random>

namespace {

using namespace zutest;

std::vector<void*> seen;
int32_t note(void* data)
{
    seen.push_back(data);
    return 0;
}

// Notes the visit; the datum that the context points to stops it.
int32_t visitUntil(void* context, void* data)
{
    seen.push_back(data);
    return data == context ? 1 : 2; // only 1 stops
}

struct Family
{
    TreeNode* parent = zu_TreeNode_create(W("parent"), nullptr);
    std::vector<TreeNode*> children;

    explicit Family(std::initializer_list<WideLiteral> names)
    {
        for (WideLiteral name : names) {
            children.push_back(zu_TreeNode_create(name, nullptr));
            EXPECT_EQ(zu_TreeNode_insChild(parent, children.back()), 1);
        }
    }
    ~Family() { zu_TreeNode_destroy(parent, nullptr); }
    Family(const Family&) = delete;
};

TEST(TreeNode, childrenByName)
{
    Family family{W("a"), W("B"), W("A"), nullptr, W("")};
    const std::tuple<WideLiteral, uint32_t, int> rows[] = {
        {W("a"), 0, 0},  {W("a"), 2, 2},  {W("a"), 3, -1}, {W("b"), 1, 1},
        {W("c"), 1, -1}, {nullptr, 2, 4}, {W(""), 1, 3},
    };
    for (const auto& [name, occurrence, child] : rows) {
        EXPECT_EQ(zu_TreeNode_getChildByName(family.parent, name, occurrence),
                  child < 0 ? nullptr : family.children[static_cast<std::size_t>(child)])
            << occurrence;
    }
    EXPECT_EQ(zu_TreeNode_getChildCount(family.parent, W("A")), 2u);
    EXPECT_EQ(zu_TreeNode_getChildCount(family.parent, nullptr), 5u) << "null counts all";
}

TEST(TreeNode, search)
{
    Family root{W("x"), W("X")};
    TreeNode* const y = zu_TreeNode_create(W("y"), nullptr);
    TreeNode* const secondY = zu_TreeNode_create(W("Y"), nullptr);
    TreeNode* const hidden = zu_TreeNode_create(W("z"), nullptr);
    zu_TreeNode_insChild(root.children[0], y);
    zu_TreeNode_insChild(root.children[0], secondY);
    zu_TreeNode_insChild(root.children[1], hidden);
    const std::tuple<WideLiteral, uint32_t, TreeNode*> rows[] = {
        {W("x..y"), 1, y},      {W(" x . y "), 0, y}, {W("x.y"), 2, secondY}, {W("x"), 2, root.children[1]},
        {W("x.z"), 1, nullptr}, // the way leads through the first x only
        {nullptr, 1, nullptr},
    };
    for (const auto& [path, occurrence, rowFound] : rows)
        EXPECT_EQ(zu_TreeNode_search(root.parent, path, occurrence), rowFound);
}

TEST(TreeNode, links)
{
    Family family{W("a"), W("b"), W("c")};
    TreeNode* const* const child = family.children.data();
    EXPECT_EQ(zu_TreeNode_getFirstChild(family.parent), child[0]);
    EXPECT_EQ(zu_TreeNode_getLastChild(family.parent), child[2]);
    EXPECT_EQ(zu_TreeNode_getNextSibling(child[0]), child[1]);
    EXPECT_EQ(zu_TreeNode_getPreviousSibling(child[2]), child[1]);
    EXPECT_EQ(zu_TreeNode_getParent(child[1]), family.parent);
    EXPECT_EQ(zu_TreeNode_delCurr(family.parent, nullptr), 0) << "has children";
    seen.clear();
    EXPECT_EQ(zu_TreeNode_delCurr(child[0], note), 1);
    EXPECT_EQ(seen, std::vector<void*>{nullptr}) << "called for null data too";
    EXPECT_EQ(zu_TreeNode_getFirstChild(family.parent), child[1]);
    EXPECT_EQ(zu_TreeNode_getPreviousSibling(child[1]), nullptr);
}

TEST(TreeNode, aChildHasOnePlace)
{
    Family family{W("a"), W("b")};
    Family other{W("x")};
    EXPECT_TRUE(
        allAre(0, {zu_TreeNode_insChild(other.parent, family.children[0]),
                   zu_TreeNode_insChild(family.parent, family.children[1]),
                   zu_TreeNode_insChild(family.parent, family.parent), zu_TreeNode_insChild(family.parent, nullptr)}));
    EXPECT_EQ(zu_TreeNode_getChildCount(other.parent, nullptr), 1u);
    EXPECT_EQ(zu_TreeNode_getChildCount(family.parent, nullptr), 2u);
}

TEST(TreeNode, namesAndData)
{
    int data = 0;
    TreeNode* const node = zu_TreeNode_create(nullptr, nullptr);
    EXPECT_EQ(zu_TreeNode_getName(node), nullptr);
    EXPECT_EQ(zu_TreeNode_setName(node, W("name")), 1);
    EXPECT_EQ(zu_TreeNode_setName(node, zu_TreeNode_getName(node) + 1), 1) << "from its own name";
    EXPECT_EQ(str(zu_TreeNode_getName(node)), W("ame"));
    EXPECT_EQ(zu_TreeNode_setRoot(node, &data), 1);
    EXPECT_EQ(zu_TreeNode_setRoot(node, node), 0) << "holds data already";
    EXPECT_EQ(zu_TreeNode_getRoot(node), &data);
    EXPECT_EQ(zu_TreeNode_setData(node, node), 0) << "stored, and 0 all the same";
    EXPECT_EQ(zu_TreeNode_getData(node), node);
    {
        const AllocationLimit limit(0);
        EXPECT_EQ(zu_TreeNode_setName(node, W("b")), 1);
        EXPECT_EQ(zu_TreeNode_create(W("b"), nullptr), nullptr);
    }
    EXPECT_EQ(zu_TreeNode_getName(node), nullptr) << "no memory, no name";
    zu_TreeNode_destroy(node, nullptr);
}

// Walks as they are defined, by recursion.
void preOrder(TreeNode* node, std::vector<void*>& order)
{
    order.push_back(node->data);
    for (TreeNode* child = node->firstChild; child != nullptr; child = child->nextSibling)
        preOrder(child, order);
}

void postOrder(TreeNode* node, bool fromLast, std::vector<void*>& order)
{
    std::vector<TreeNode*> children;
    for (TreeNode* child = node->firstChild; child != nullptr; child = child->nextSibling)
        children.insert(fromLast ? children.begin() : children.end(), child);
    for (TreeNode* child : children)
        postOrder(child, fromLast, order);
    order.push_back(node->data);
}

// A tree of up to 25 nodes with a datum each.
struct GeneratedTree
{
    std::vector<char> data;
    std::vector<TreeNode*> nodes; // the root first

    explicit GeneratedTree(std::mt19937& random) : data(1 + random() % 25)
    {
        for (char& datum : data) {
            TreeNode* const node = zu_TreeNode_create(W("n"), &datum);
            if (!nodes.empty())
                zu_TreeNode_insChild(nodes[random() % nodes.size()], node);
            nodes.push_back(node);
        }
    }
};

TEST(TreeNode, walksFollowTheirDefinition)
{
    std::mt19937 random(4);
    for (int round = 0; round < 500; ++round) {
        const GeneratedTree tree(random);
        // From any node: what lies beside and above it must not be reached, except by next.
        TreeNode* const start = tree.nodes[random() % tree.nodes.size()];
        std::vector<void*> expected;
        preOrder(start, expected);
        seen.clear();
        ASSERT_EQ(zu_TreeNode_visit(start, nullptr, visitUntil, round % 2), nullptr);
        ASSERT_EQ(seen, expected);

        expected.clear();
        postOrder(start, false, expected);
        seen.clear();
        ASSERT_EQ(zu_TreeNode_visit(start, nullptr, visitUntil, 2), nullptr);
        ASSERT_EQ(seen, expected);

        void* const wanted = expected[random() % expected.size()];
        seen.clear();
        ASSERT_EQ(zu_TreeNode_getData(zu_TreeNode_visitPost(start, wanted, visitUntil)), wanted);
        ASSERT_EQ(seen.back(), wanted);
        ASSERT_EQ(seen.size(), std::find(expected.begin(), expected.end(), wanted) - expected.begin() + 1u);
        seen.clear();
        ASSERT_EQ(zu_TreeNode_getData(zu_TreeNode_visitPre(start, wanted, visitUntil)), wanted);
        ASSERT_EQ(seen.back(), wanted);

        expected.clear();
        preOrder(tree.nodes[0], expected);
        expected.erase(expected.begin(), std::find(expected.begin(), expected.end(), start->data));
        seen.clear();
        for (TreeNode* node = start; node != nullptr; node = zu_TreeNode_next(node))
            seen.push_back(node->data);
        ASSERT_EQ(seen, expected) << "next goes on past the start's subtree";
        zu_TreeNode_destroy(tree.nodes[0], nullptr);
    }
}

TEST(TreeNode, destroyGoesFromTheLastChild)
{
    std::mt19937 random(6);
    for (int round = 0; round < 500; ++round) {
        const int64_t blocks = liveBlocks();
        const GeneratedTree tree(random);
        TreeNode* const start = tree.nodes[random() % tree.nodes.size()];
        std::vector<void*> expected;
        postOrder(start, true, expected);
        seen.clear();
        ASSERT_EQ(zu_TreeNode_destroy(start, note), 1);
        ASSERT_EQ(seen, expected);
        if (start != tree.nodes[0]) {
            postOrder(tree.nodes[0], true, expected);
            ASSERT_EQ(expected.size(), tree.data.size()) << "the rest is whole";
            ASSERT_EQ(zu_TreeNode_destroy(tree.nodes[0], note), 1);
            ASSERT_EQ(seen, expected);
        }
        ASSERT_EQ(liveBlocks(), blocks);
    }
}

int64_t visits = 0;
int32_t countVisit(void*, void*)
{
    ++visits;
    return 0;
}

void walkAndDestroy(TreeNode* root, int64_t count)
{
    for (int32_t order : {1, 2}) {
        visits = 0;
        EXPECT_EQ(zu_TreeNode_visit(root, nullptr, countVisit, order), nullptr);
        EXPECT_EQ(visits, count);
    }
    int64_t steps = 0;
    for (TreeNode* node = root; node != nullptr; node = zu_TreeNode_next(node))
        ++steps;
    EXPECT_EQ(steps, count);
    const int64_t before = liveBlocks();
    EXPECT_EQ(zu_TreeNode_destroy(root, nullptr), 1);
    EXPECT_EQ(liveBlocks(), before - count);
}

TEST(TreeNode, aMillionDeep)
{
    const int64_t count = 1'000'000;
    TreeNode* const root = zu_TreeNode_create(nullptr, nullptr);
    TreeNode* deepest = root;
    for (int64_t index = 1; index < count; ++index) {
        TreeNode* const child = zu_TreeNode_create(nullptr, nullptr);
        zu_TreeNode_insChild(deepest, child);
        deepest = child;
    }
    walkAndDestroy(root, count);
}

TEST(TreeNode, aMillionWide)
{
    const int64_t count = 1'000'000;
    TreeNode* const root = zu_TreeNode_create(nullptr, nullptr);
    // Linked by hand: each insertion would walk to the last child.
    TreeNode* last = nullptr;
    for (int64_t index = 1; index < count; ++index) {
        TreeNode* const child = zu_TreeNode_create(nullptr, nullptr);
        child->parent = root;
        child->previousSibling = last;
        (last == nullptr ? root->firstChild : last->nextSibling) = child;
        last = child;
    }
    EXPECT_EQ(zu_TreeNode_getLastChild(root), last);
    walkAndDestroy(root, count);
}

TEST(TreeNode, nothingToWorkOn)
{
    for (const auto relative : {zu_TreeNode_getParent, zu_TreeNode_getFirstChild, zu_TreeNode_getLastChild,
                                zu_TreeNode_getNextSibling, zu_TreeNode_getPreviousSibling, zu_TreeNode_next})
        EXPECT_EQ(relative(nullptr), nullptr);
    EXPECT_TRUE(allAre(0, {zu_TreeNode_destroy(nullptr, note), zu_TreeNode_delCurr(nullptr, note),
                           zu_TreeNode_setName(nullptr, W("a")), zu_TreeNode_setData(nullptr, &seen),
                           zu_TreeNode_setRoot(nullptr, &seen)}));
    EXPECT_EQ(zu_TreeNode_getChildCount(nullptr, nullptr), 0u);
    Family family{W("a")};
    seen.clear();
    EXPECT_TRUE(allNull(
        {zu_TreeNode_getName(nullptr), zu_TreeNode_getData(nullptr), zu_TreeNode_getRoot(nullptr),
         zu_TreeNode_getChildByName(nullptr, nullptr, 1), zu_TreeNode_search(nullptr, W("x"), 1),
         zu_TreeNode_visitPre(nullptr, nullptr, visitUntil), zu_TreeNode_visitPost(nullptr, nullptr, visitUntil),
         zu_TreeNode_visitPre(family.parent, nullptr, nullptr), zu_TreeNode_visitPost(family.parent, nullptr, nullptr),
         zu_TreeNode_visit(family.parent, nullptr, visitUntil, -1),
         zu_TreeNode_visit(family.parent, nullptr, visitUntil, 3)}));
    EXPECT_TRUE(seen.empty());
}

} // namespace
