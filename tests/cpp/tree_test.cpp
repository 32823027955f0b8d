// Trees of the C++ interface.
#include "support/wide.h"
#include "zu.hpp"

namespace {

using namespace zutest;

Wide names(const auto& nodes)
{
    Wide all;
    for (const auto node : nodes)
        all += Wide(node.name()) + W(" ");
    return all;
}

TEST(CppTree, nodes)
{
    int numbers[] = {1, 2};
    const zu::tree<int> tree;
    const auto root = tree.root();
    const auto area = root.add("area 1");
    area.add("P-1", &numbers[0]);
    area.add("P-2", &numbers[1]);
    root.add(u8"Kühlung");
    EXPECT_EQ(names(root.children()), W("area 1 K\u00FChlung "));
    EXPECT_EQ(names(tree), W(" area 1 P-1 P-2 K\u00FChlung ")) << "each before its children";
    EXPECT_EQ(root.find("AREA 1.p-2")->data(), &numbers[1]);
    EXPECT_FALSE(root.find("area 1.p-3"));
    EXPECT_EQ(area.parent()->get(), root.get());
    EXPECT_FALSE(root.parent());
    area.add("P-1", &numbers[1]);
    EXPECT_EQ(root.find("area 1.p-1", 2)->data(), &numbers[1]);
}

} // namespace
