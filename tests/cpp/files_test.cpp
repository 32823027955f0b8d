// Files, directories and file names of the C++ interface: what the flat calls answer in several ways is true or false
// here.
#include "support/configured.h"
#include "zu.hpp"

namespace {

using namespace zutest;
using namespace std::string_literals;

TEST(CppFiles, successIsTrue)
{
    const Configured sandbox;
    const Wide a = sandbox.path(W("a.txt"));
    const Wide b = sandbox.path(W("b.txt"));
    const Wide none = sandbox.path(W("none.txt"));
    sandbox.write(W("a.txt"), "one\n\ntwo\n");
    EXPECT_TRUE(zu::files::exists(a));
    EXPECT_FALSE(zu::files::exists(none));
    EXPECT_EQ(zu::files::lines(a).size(), 2u);

    EXPECT_TRUE(zu::files::copy(a, b));
    EXPECT_FALSE(zu::files::copy(a, a));
    EXPECT_TRUE(zu::files::append(a, b)) << "the source comes first";
    EXPECT_EQ(zu::files::lines(b).size(), 4u);

    using namespace std::chrono;
    const sys_seconds time{sys_days{2001y / September / 9} + 1h + 46min + 40s};
    EXPECT_TRUE(zu::files::set_modified(a, time));
    EXPECT_FALSE(zu::files::set_modified(a, sys_days{2200y / January / 1})) << "beyond 32 bits";
    EXPECT_EQ(zu::files::modified(a), time);

    EXPECT_TRUE(zu::files::move(b, none));
    EXPECT_FALSE(zu::files::move(b, none));
    EXPECT_EQ(zu::files::remove_all(sandbox.path(W("*.txt"))), 1u) << "the move without a source deleted none.txt";
}

TEST(CppDirectories, successIsTrue)
{
    const Configured sandbox;
    const Wide made = sandbox.path(W("made"));
    EXPECT_TRUE(zu::directories::create(made + W("\\inner")));
    EXPECT_FALSE(zu::directories::create(made)) << "there is nothing to create";
    EXPECT_FALSE(zu::directories::remove(made)) << "not empty";
    EXPECT_TRUE(zu::directories::remove(made + W("\\inner")));
    EXPECT_TRUE(zu::directories::remove_tree(made));
    EXPECT_FALSE(zu::directories::exists(made));
    EXPECT_FALSE(zu::directories::change(made));
    EXPECT_EQ(zu::directories::parent("d:\\a\\b"), W("d:\\a\\"s));
    EXPECT_EQ(zu::directories::parent("d:\\"), std::nullopt);
}

TEST(CppFileNames, parts)
{
    EXPECT_EQ(zu::file_names::directory("D:\\specs.a\\pipe.txt"), W("D:\\specs.a\\"));
    EXPECT_EQ(zu::file_names::extension("D:\\specs.a\\pipe.txt"), W("txt"));
    EXPECT_EQ(zu::file_names::without_extension("D:\\specs.a\\pipe"), W("D:\\specs.a\\pipe"));
    EXPECT_EQ(zu::file_names::with_extension("pipe.txt", "a long extension"), W("pipe.a long extension"));
    EXPECT_EQ(zu::files::relative("D:\\a\\b", "D:\\a\\c\\x.txt"), W("..\\c\\x.txt"s));
    EXPECT_EQ(zu::files::relative("D:", "D:\\a"), std::nullopt);
}

} // namespace
