/** @file zu_cpp/tree.hpp
 *  @ingroup cpp
 *  Trees of named nodes with data. Part of zu.hpp.
 *
 *      zu::owning_tree<Pipe> plant;
 *      auto area = plant.root().add("area 1");
 *      area.add("P-101", std::make_unique<Pipe>());
 *      Pipe* pipe = plant.root().find("area 1.p-101")->data();
 */
#ifndef ZU_CPP_TREE_HPP
#define ZU_CPP_TREE_HPP

#include "../zu_TreeNode.h"
#include "text.hpp"

#include <iterator>

namespace zu {

namespace detail {

/** A walk over nodes; Next gives the node after one. */
template <class Node, class Next>
class node_iterator
{
public:
    using value_type = Node;
    using reference = Node;
    using difference_type = std::ptrdiff_t;
    using pointer = void;
    using iterator_concept = std::forward_iterator_tag;
    using iterator_category = std::input_iterator_tag;

    node_iterator() noexcept = default;
    explicit node_iterator(TreeNode* at) noexcept : node(at) {}

    Node operator*() const noexcept { return Node(node); }
    node_iterator& operator++()
    {
        node = Next::of(node);
        return *this;
    }
    node_iterator operator++(int)
    {
        const node_iterator before = *this;
        ++*this;
        return before;
    }
    friend bool operator==(const node_iterator& a, const node_iterator& b) noexcept { return a.node == b.node; }

private:
    TreeNode* node = nullptr;
};

struct next_sibling
{
    static TreeNode* of(TreeNode* node) { return zu_TreeNode_getNextSibling(node); }
};
struct next_in_tree
{
    static TreeNode* of(TreeNode* node) { return zu_TreeNode_next(node); }
};

template <class Iterator>
class node_range
{
public:
    explicit node_range(TreeNode* first) noexcept : node(first) {}
    Iterator begin() const noexcept { return Iterator(node); }
    Iterator end() const noexcept { return Iterator(); }
    bool empty() const noexcept { return node == nullptr; }

private:
    TreeNode* node;
};

} // namespace detail

/** A node of a tree, which stays the owner. Owning says whether the tree owns the data. */
template <class T, bool Owning>
class tree_node
{
public:
    /** The node of a record, which must not be null. */
    explicit tree_node(TreeNode* record) noexcept : node(record) {}

    /** The name; empty for a node without one. */
    wide_view name() const
    {
        const zu_wchar* const text = zu_TreeNode_getName(node);
        return text == nullptr ? wide_view() : wide_view(text);
    }
    /** The data; may be null. */
    T* data() const { return static_cast<T*>(zu_TreeNode_getData(node)); }
    /** The node above; none for a root. */
    std::optional<tree_node> parent() const { return optional(zu_TreeNode_getParent(node)); }
    /** The children in order, as a range of nodes. */
    auto children() const
    {
        using iterator = detail::node_iterator<tree_node, detail::next_sibling>;
        return detail::node_range<iterator>(zu_TreeNode_getFirstChild(node));
    }
    /** Looks for a node below this one by its path, names with dots between them; case is ignored.
     *  @param occurrence  which of the last name, from 1. */
    [[nodiscard]] std::optional<tree_node> find(const text& path, std::uint32_t occurrence = 1) const
    {
        return optional(zu_TreeNode_search(node, path.c_str(), occurrence));
    }
    /** Appends a child without data. Throws std::bad_alloc without memory. */
    tree_node add(const text& name) const { return insert(name, nullptr); }
    /** Appends a child with data of the caller's, which may be null. Throws std::bad_alloc without memory. */
    tree_node add(const text& name, T* data) const requires(!Owning) { return insert(name, data); }
    /** Appends a child with data that the tree owns from now on. Throws std::bad_alloc without memory; data is deleted
     *  then. */
    tree_node add(const text& name, std::unique_ptr<T> data) const requires Owning
    {
        const tree_node child = insert(name, data.get());
        static_cast<void>(data.release());
        return child;
    }
    /** @return the record, owned by the tree. */
    TreeNode* get() const noexcept { return node; }

private:
    static std::optional<tree_node> optional(TreeNode* found)
    {
        return found == nullptr ? std::nullopt : std::optional<tree_node>(found);
    }
    tree_node insert(const text& name, T* data) const
    {
        TreeNode* const child = detail::made(zu_TreeNode_create(name.c_str(), data));
        // A name that there was no memory for is missing.
        const bool named = name.c_str() == nullptr || zu_TreeNode_getName(child) != nullptr;
        if (!named || zu_TreeNode_insChild(node, child) != 1) {
            zu_TreeNode_destroy(child, nullptr);
            detail::inserted(false, node != nullptr);
        }
        return tree_node(child);
    }
    TreeNode* node;
};

namespace detail {

template <class T, bool Owning>
struct tree_family
{
    static std::int32_t freeData(void* data)
    {
        delete static_cast<T*>(data);
        return 1;
    }
    static void destroy(TreeNode* node)
    {
        if constexpr (Owning)
            zu_TreeNode_destroy(node, &tree_family::freeData);
        else
            zu_TreeNode_destroy(node, nullptr);
    }
};

template <class T, bool Owning>
class basic_tree : public owner<TreeNode, tree_family<T, Owning>>
{
public:
    using node_type = tree_node<T, Owning>;
    using iterator = node_iterator<node_type, next_in_tree>;

    /** A tree of a root without name and data. Throws std::bad_alloc without memory. */
    basic_tree() : basic_tree(adopt, made(zu_TreeNode_create(nullptr, nullptr))) {}
    /** Takes over a root with all below it; null holds nothing. */
    basic_tree(adopt_t, TreeNode* root) noexcept : owner<TreeNode, tree_family<T, Owning>>(adopt, root) {}

    /** The root; a tree must be held. */
    node_type root() const noexcept { return node_type(this->get()); }
    /** All nodes from the root on, each before its children. */
    iterator begin() const noexcept { return iterator(this->get()); }
    iterator end() const noexcept { return iterator(); }
};

} // namespace detail

/** An owner of a tree whose data are the caller's and must outlive their nodes. A tree begins as a root without name
 *  and data; root() is its node (zu::tree_node), begin() and end() go over all nodes, each before its children. */
template <class T>
using tree = detail::basic_tree<T, false>;

/** The same with data that the tree owns: they come from new, and the tree deletes them. */
template <class T>
using owning_tree = detail::basic_tree<T, true>;

} // namespace zu

#endif
