#include "files_support.h"
#include "support/host.h"
#include "zu_Dir.h"
#include "zu_File.h"
#include "zu_Global.h"
#include "zu_Host.h"

namespace {

using namespace zutest;
using Calls = std::vector<std::string>;

// A sandbox that is the current directory: names alone show in what the host records.
struct Place : Sandbox
{
    Place() { std::filesystem::current_path(native()); }
};

TEST(File, theServiceSaysWhatExists)
{
    Place place;
    TestHost host;
    host.files = {W("known")};
    host.folders = {W("dir")};
    place.write(W("unknown"), "content");
    place.write(W("known"), "content");
    EXPECT_EQ(zu_File_exists(W("known")), 1);
    EXPECT_EQ(zu_File_exists(W("unknown")), 0);
    EXPECT_EQ(zu_Dir_exists(W("dir")), 1);
    EXPECT_EQ(zu_File_create(W("known")), 1);
    EXPECT_EQ(place.read(W("known")), "content");
    EXPECT_EQ(zu_File_create(W("unknown")), 1);
    EXPECT_EQ(place.read(W("unknown")), "") << "made anew, as nobody knew it";
    host.fail("FileService.FileExists", E_ACCESSDENIED);
    host.fail("FileService.FolderExists", E_ACCESSDENIED);
    EXPECT_THROW(zu_File_exists(W("known")), _com_error);
    EXPECT_THROW(zu_File_create(W("known")), _com_error);
    EXPECT_THROW(zu_Dir_exists(W("dir")), _com_error);
}

TEST(File, theServiceIsToldOfChanges)
{
    const std::tuple<const char*, std::function<int32_t()>, int32_t, Calls> rows[] = {
        {"delete", [] { return zu_File_deleteSingle(W("A")); }, 1, {"A"}},
        {"delete by pattern", [] { return zu_File_delete(W(".\\A*"), 0); }, 2, {".\\A", ".\\A2"}},
        {"copy", [] { return zu_File_copy(W("A"), W("B")); }, 0, {"B"}},
        {"move", [] { return zu_File_move(W("A"), W("B")); }, 0, {"A", "B"}},
        {"move what is missing", [] { return zu_File_move(W("none"), W("B")); }, -1, {"none", "B"}},
        {"make a directory", [] { return zu_Dir_create(W("New")); }, 0, {"new\\"}},
        {"remove a directory", [] { return zu_Dir_delete(W("Dir\\")); }, 0, {"dir\\"}},
        {"remove a tree",
         [] { return zu_Dir_deleteTree(W("Tree")); },
         0,
         {"Tree\\.", "Tree\\..", "Tree\\Sub", "Tree\\Sub\\.", "Tree\\Sub\\..", "Tree\\Sub\\F", "tree\\sub", "tree"}},
    };
    for (const auto& [what, operation, result, rowTold] : rows) {
        Place place;
        TestHost host;
        for (WideLiteral name : {W("A"), W("A2"), W("Tree\\Sub\\F")}) {
            std::filesystem::create_directories(place.native(name).parent_path());
            place.write(name, "x");
        }
        std::filesystem::create_directory(place.native(W("Dir")));
        Calls told;
        host.whenCalled = [&](const std::string& line) {
            const std::string method = "FileService.Revalidate ";
            if (line.starts_with(method))
                told.push_back(line.substr(method.size()));
        };
        EXPECT_EQ(operation(), result) << what;
        EXPECT_EQ(told, rowTold) << what;
    }
}

TEST(File, whenTheServiceCannotBeTold)
{
    Place place;
    TestHost host;
    place.write(W("A"), "x");
    std::filesystem::create_directory(place.native(W("dir")));
    host.fail("FileService.Revalidate", E_FAIL);
    EXPECT_THROW(zu_File_revalidate(W("A")), _com_error);
    EXPECT_THROW(zu_File_deleteSingle(W("A")), _com_error);
    EXPECT_THROW(zu_Dir_delete(W("dir")), _com_error);
    EXPECT_THROW(zu_Dir_create(W("new")), _com_error);
    EXPECT_EQ(entriesOf(place), (Calls{"A", "dir/"})) << "told first, so nothing was done";
    EXPECT_THROW(zu_File_copy(W("A"), W("B")), _com_error);
    EXPECT_THROW(zu_File_move(W("A"), W("C")), _com_error);
    EXPECT_EQ(entriesOf(place), (Calls{"B", "C", "dir/"})) << "told afterwards";
}

TEST(File, withoutTheServiceNothingExists)
{
    Place place;
    place.write(W("file"), "content");
    const int32_t before = zu_Host_getBuiltIn();
    for (const int32_t builtIn : {0, 1}) {
        zu_Host_setBuiltIn(builtIn);
        zu_Global_destroyData();
        EXPECT_EQ(zu_File_exists(W("file")), builtIn);
        EXPECT_EQ(zu_File_exists(W(".")), 0);
        EXPECT_EQ(zu_Dir_exists(W(".")), builtIn);
        EXPECT_EQ(zu_Dir_exists(W("file")), 0);
        place.write(W("file"), "content");
        EXPECT_EQ(zu_File_create(W("file")), 1);
        EXPECT_EQ(place.read(W("file")), builtIn != 0 ? "content" : "");
        zu_File_revalidate(W("file"));
    }
    zu_Host_setBuiltIn(before);
    zu_Global_destroyData();
}

} // namespace
