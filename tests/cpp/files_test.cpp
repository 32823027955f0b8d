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
    EXPECT_TRUE(zu::files::has_access(a, zu::files::access::read_write));
    EXPECT_FALSE(zu::files::has_access(none, zu::files::access::exists));
    EXPECT_EQ(zu::files::lines(a).size(), 2u);
    EXPECT_FALSE(zu::files::lines(none));

    EXPECT_TRUE(zu::files::copy(a, b));
    EXPECT_FALSE(zu::files::copy(a, a));
    EXPECT_FALSE(zu::files::copy(none, b));
    EXPECT_TRUE(zu::files::copy(a, b));
    EXPECT_TRUE(zu::files::append(a, b)) << "the source comes first";
    EXPECT_FALSE(zu::files::append(none, b));
    EXPECT_EQ(zu::files::lines(b).size(), 4u);
    EXPECT_EQ(zu::files::lines(a).size(), 2u);

    using namespace std::chrono;
    const sys_seconds time{sys_days{2001y / September / 9} + 1h + 46min + 40s};
    EXPECT_TRUE(zu::files::set_modified(a, time));
    EXPECT_EQ(zu::files::modified(a), time);
    EXPECT_EQ(zu::files::modified(none), std::nullopt);
    EXPECT_FALSE(zu::files::set_modified(a, sys_days{2200y / January / 1})) << "beyond 32 bits";
    EXPECT_EQ(zu::files::modified(a), time);

    EXPECT_TRUE(zu::files::move(b, none));
    EXPECT_FALSE(zu::files::move(b, none));
    sandbox.write(W("a.txt"), "one");
    sandbox.write(W("c.txt"), "c");
    EXPECT_TRUE(zu::files::create(b));
    EXPECT_TRUE(zu::files::remove(b));
    EXPECT_FALSE(zu::files::remove(b));
    EXPECT_EQ(zu::files::remove_all(sandbox.path(W("*.txt"))), 2u) << "the move without a source deleted none.txt";
}

TEST(CppFiles, parts)
{
    const Sandbox sandbox;
    sandbox.write(W("data.bin"), "12345");
    const Wide data = sandbox.path(W("data.bin"));
    EXPECT_EQ(zu::files::slice(data, 2), 3u);
    EXPECT_EQ(zu::files::mend(data), 3u);
    EXPECT_EQ(sandbox.read(W("data.bin")), "12345");
    EXPECT_EQ(zu::files::slice(data, 0), std::nullopt);
    EXPECT_EQ(zu::files::slice(sandbox.path(W("none")), 2), std::nullopt);
}

TEST(CppDirectories, successIsTrue)
{
    const Configured sandbox;
    const Wide made = sandbox.path(W("made"));
    EXPECT_TRUE(zu::directories::create(made + W("\\inner")));
    EXPECT_FALSE(zu::directories::create(made)) << "there is nothing to create";
    EXPECT_TRUE(zu::directories::exists(made));
    EXPECT_EQ(zu::directories::list(made + W("\\*.*")).size(), 3u) << "., .. and inner";
    EXPECT_FALSE(zu::directories::remove(made)) << "not empty";
    EXPECT_TRUE(zu::directories::remove(made + W("\\inner")));
    EXPECT_TRUE(zu::directories::remove_tree(made));
    EXPECT_FALSE(zu::directories::exists(made));
    EXPECT_FALSE(zu::directories::list(made + W("\\*.*")));
    EXPECT_TRUE(zu::directories::change(sandbox.path()));
    EXPECT_FALSE(zu::directories::change(made));
    EXPECT_TRUE(zu::directories::current());
    EXPECT_EQ(zu::directories::parent("d:\\a\\b"), W("d:\\a\\"s));
    EXPECT_EQ(zu::directories::parent("d:\\"), std::nullopt);
}

TEST(CppFileNames, parts)
{
    const struct
    {
        const char* name;
        Wide directory, extension, withoutDirectory, withoutExtension, withDat;
    } rows[] = {
        {"D:\\specs.a\\pipe.txt", W("D:\\specs.a\\"), W("txt"), W("pipe.txt"), W("D:\\specs.a\\pipe"),
         W("D:\\specs.a\\pipe.a long extension")},
        {"pipe", W(""), W(""), W("pipe"), W("pipe"), W("pipe.a long extension")},
        {"", W(""), W(""), W(""), W(""), W(".a long extension")},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(zu::file_names::directory(row.name), row.directory) << row.name;
        EXPECT_EQ(zu::file_names::extension(row.name), row.extension) << row.name;
        EXPECT_EQ(zu::file_names::without_directory(row.name), row.withoutDirectory) << row.name;
        EXPECT_EQ(zu::file_names::without_extension(row.name), row.withoutExtension) << row.name;
        EXPECT_EQ(zu::file_names::with_extension(row.name, "a long extension"), row.withDat) << row.name;
    }
    EXPECT_EQ(zu::file_names::with_extension("a.txt", ""), W("a"));
    EXPECT_EQ(zu::files::relative("D:\\a\\b", "D:\\a\\c\\x.txt"), W("..\\c\\x.txt"s));
    EXPECT_EQ(zu::files::relative("D:", "D:\\a"), std::nullopt);
}

} // namespace
