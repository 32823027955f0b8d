// The INI cache of the built-in host.
#include "ini_cache_driver.h"
#include "support/memory.h"
#include "support/trace.h"

#include <chrono>

namespace {

using namespace zutest;
using namespace zu;

class BuiltInIniCache : public testing::Test
{
protected:
    Sandbox sandbox;
    CacheDriver cache;
    const Wide file = sandbox.path(W("zu.ini"));
};

VARIANT indexOf(int type, LONG value)
{
    VARIANT result;
    VariantInit(&result);
    result.vt = static_cast<VARTYPE>(type);
    result.llVal = value;
    return result;
}

// The entries of a group as "key=value" lines.
std::vector<Wide> entriesOf(const ComPtr<IniCacheGroup>& group)
{
    std::vector<Wide> result;
    LONG count = -1;
    EXPECT_EQ(group->get_Count(&count), S_OK);
    for (LONG index = 0; index < count; ++index) {
        ComPtr<IniCacheEntry> entry;
        EXPECT_EQ(group->get_Item(indexOf(VT_I4, index), entry.out()), S_OK);
        Bstr name;
        Bstr value;
        EXPECT_EQ(entry->get_Name(name.out()), S_OK);
        EXPECT_EQ(entry->get_Value(value.out()), S_OK);
        result.push_back(Wide(name.view()) + W("=") + Wide(value.view()));
    }
    return result;
}

TEST_F(BuiltInIniCache, readsAndWritesValues)
{
    sandbox.write(W("zu.ini"), "; top\r\n[General]\r\nKV = D:\\net \r\nempty=\r\n");
    EXPECT_EQ(cache.get(file, W("GENERAL"), W("kv")), W("D:\\net"));
    EXPECT_EQ(cache.get(file, W("GENERAL"), W("empty")), W(""));
    EXPECT_EQ(cache.get(file, W("other"), W("kv")), W("<none>"));
    EXPECT_TRUE(cache.set(file, W("general"), W("kv"), W("E:\\")));
    EXPECT_TRUE(cache.set(file, W("General"), W("new"), W("1")));
    EXPECT_TRUE(cache.set(file, W("More"), W("a"), W("b")));
    EXPECT_EQ(sandbox.read(W("zu.ini")), "; top\r\n[General]\r\nKV=E:\\\r\nempty=\r\nnew=1\r\n\r\n[More]\r\na=b\r\n");
    EXPECT_EQ(cache.get(file, W("MORE"), W("A")), W("b"));
    EXPECT_FALSE(cache.set(file, W("More"), W("a"), W("two\nlines")));
    EXPECT_EQ(cache.get(file, W("more"), W("a")), W("b"));
    // Only the file itself is left in its directory.
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(sandbox.native()), {}), 1);
}

TEST_F(BuiltInIniCache, addsAndRemovesGroups)
{
    EXPECT_FALSE(cache.remove(file, W("a")));
    EXPECT_FALSE(sandbox.exists(W("zu.ini"))) << "nothing to remove makes no file";
    EXPECT_TRUE(cache.add(file, W("a")));
    EXPECT_FALSE(cache.add(file, W("A"))) << "it is there";
    EXPECT_TRUE(cache.set(file, W("a"), W("k"), W("v")));
    EXPECT_TRUE(cache.remove(file, W("A")));
    EXPECT_FALSE(cache.remove(file, W("a")));
    EXPECT_EQ(cache.get(file, W("a"), W("k")), W("<none>"));
    EXPECT_FALSE(cache.add(file, W("no]name")));
}

TEST_F(BuiltInIniCache, givesGroupsInTheOrderOfTheFile)
{
    sandbox.write(W("zu.ini"), "[b]\nz=1\n;c\ny=2\nZ=3\nx\n[a]\n[B]\nw=4\n");
    EXPECT_EQ(entriesOf(cache.group(file, W("B"))), (std::vector<Wide>{W("z=1"), W("y=2"), W("Z=3"), W("x=")}));
    EXPECT_TRUE(entriesOf(cache.group(file, W("a"))).empty());

    ComPtr<IniCacheGroups> groups;
    ASSERT_EQ(cache->GetGroups(cache.bstr(file), groups.out()), S_OK);
    LONG count = 0;
    EXPECT_EQ(groups->get_Count(&count), S_OK);
    ASSERT_EQ(count, 2);
    ComPtr<IniCacheGroup> group;
    Bstr name;
    EXPECT_EQ(groups->get_Item(indexOf(VT_INT, 1), group.out()), S_OK);
    EXPECT_EQ(group->get_Name(name.out()), S_OK);
    EXPECT_EQ(Wide(name.view()), W("a"));
    EXPECT_EQ(groups->get_Item(indexOf(VT_I2, 0), group.out()), S_OK);
    EXPECT_EQ(entriesOf(group).size(), 4u);
    EXPECT_EQ(groups->get_Item(indexOf(VT_I4, 2), group.out()), DISP_E_BADINDEX);
    EXPECT_FALSE(group);
    EXPECT_EQ(groups->get_Item(indexOf(VT_R8, 0), group.out()), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(cache->GetGroups(cache.bstr(sandbox.path(W("missing"))), groups.out()), S_OK);
    EXPECT_FALSE(groups);
}

TEST_F(BuiltInIniCache, aGroupShowsWhatIsChangedThroughIt)
{
    sandbox.write(W("zu.ini"), "[a]\nk=1\n; kept\nm=2\n");
    const auto group = cache.group(file, W("a"));
    const auto other = cache.group(file, W("a"));
    VARIANT_BOOL removed = VARIANT_FALSE;
    EXPECT_EQ(group->RemoveAll(&removed), S_OK);
    EXPECT_EQ(removed, VARIANT_TRUE);
    EXPECT_TRUE(entriesOf(group).empty());
    EXPECT_EQ(group->SetValue(cache.bstr(W("n")), cache.bstr(W("3"))), S_OK);
    EXPECT_EQ(entriesOf(group), std::vector<Wide>{W("n=3")});
    EXPECT_EQ(sandbox.read(W("zu.ini")), "[a]\nn=3\n; kept\n");
    EXPECT_EQ(entriesOf(other).size(), 2u) << "as it was";
    EXPECT_EQ(group->SetValue(cache.bstr(W("n")), cache.bstr(W("\n"))), E_FAIL);

    // Somebody removes it meanwhile: setting makes it again.
    EXPECT_TRUE(cache.remove(file, W("a")));
    EXPECT_EQ(group->SetValue(cache.bstr(W("o")), cache.bstr(W("4"))), S_OK);
    EXPECT_EQ(entriesOf(group), std::vector<Wide>{W("o=4")});
}

TEST_F(BuiltInIniCache, seesChangesFromOutsideAtOnce)
{
    for (int round = 0; round < 50; ++round) {
        const std::string value(1, static_cast<char>('a' + round % 26));
        sandbox.write(W("zu.ini"), "[g]\nk=" + value + "\n"); // of the same length, and soon after
        ASSERT_EQ(cache.get(file, W("g"), W("k")), widen(value)) << round;
    }
    std::filesystem::remove(sandbox.native(W("zu.ini")));
    EXPECT_EQ(cache.get(file, W("g"), W("k")), W("<none>"));
    sandbox.write(W("zu.ini"), "[g]\nk=1\n");
    // A change is made to the file as it stands, not as it was read.
    EXPECT_EQ(cache.get(file, W("g"), W("k")), W("1"));
    sandbox.write(W("zu.ini"), "[g]\nk=2\nm=3\n");
    EXPECT_TRUE(cache.set(file, W("g"), W("n"), W("4")));
    EXPECT_EQ(sandbox.read(W("zu.ini")), "[g]\nk=2\nm=3\nn=4\n");
}

TEST_F(BuiltInIniCache, readsAgainOnlyWhatChangedUnlessItIsTold)
{
    // A change that leaves no trace in time and length shows that what is held is not read again.
    const auto path = sandbox.native(W("zu.ini"));
    const auto longAgo = std::filesystem::file_time_type::clock::now() - std::chrono::hours(1);
    const auto put = [&](const char* content) {
        sandbox.write(W("zu.ini"), content);
        std::filesystem::last_write_time(path, longAgo);
    };
    put("[g]\nk=1\n");
    EXPECT_EQ(cache.get(file, W("g"), W("k")), W("1"));
    put("[g]\nk=2\n");
    EXPECT_EQ(cache.get(file, W("g"), W("k")), W("1"));
    EXPECT_EQ(cache->Reload(cache.bstr(file)), S_OK);
    EXPECT_EQ(cache.get(file, W("g"), W("k")), W("2"));
    put("[g]\nk=3\n");
    EXPECT_EQ(cache->ResetCache(), S_OK);
    EXPECT_EQ(cache.get(file, W("g"), W("k")), W("3"));
}

TEST_F(BuiltInIniCache, showsWhatItHolds)
{
    sandbox.write(W("a.ini"), "[g]\nk=\xC3\xA4\n");
    sandbox.write(W("b.ini"), "[h]\n");
    const auto shown = [&] {
        return printedBy([&] { EXPECT_EQ(cache->ViewCache(), S_OK); });
    };
    cache.get(sandbox.path(W("a.ini")), W("g"), W("k"));
    cache.get(sandbox.path(W("b.ini")), W("g"), W("k"));
    cache.get(sandbox.path(W("a.ini")), W("g"), W("k"));
    const std::string text = shown();
    EXPECT_LT(text.find("b.ini\n[h]\n"), text.find("a.ini\n[g]\nk=")) << "the one used last at the end";

    // Many files do not stay for ever.
    for (int number = 0; number < 70; ++number) {
        const Wide name = W("n") + widen(std::to_string(number));
        sandbox.write(name, "[h]\n");
        cache.get(sandbox.path(name), W("h"), W("k"));
    }
    const std::string many = shown();
    EXPECT_EQ(std::count(many.begin(), many.end(), '['), 64);
}

TEST_F(BuiltInIniCache, refusesWhatIsNoFileToWrite)
{
    EXPECT_FALSE(cache.set(sandbox.path(W("no\\such\\zu.ini")), W("g"), W("k"), W("v"))) << "missing directory";
    EXPECT_FALSE(cache.set(sandbox.path(), W("g"), W("k"), W("v"))) << "a directory";

    sandbox.write(W("zu.ini"), "[g]\nk=v\n");
    std::filesystem::permissions(sandbox.native(W("zu.ini")),
                                 std::filesystem::perms::owner_write | std::filesystem::perms::group_write |
                                     std::filesystem::perms::others_write,
                                 std::filesystem::perm_options::remove);
    EXPECT_EQ(cache.get(file, W("g"), W("k")), W("v"));
    EXPECT_FALSE(cache.set(file, W("g"), W("k"), W("other")));
    EXPECT_FALSE(cache.set(file, W("g"), W("k"), W("v"))) << "read-only, even when nothing would change";
    EXPECT_EQ(sandbox.read(W("zu.ini")), "[g]\nk=v\n");
    std::filesystem::permissions(sandbox.native(W("zu.ini")), std::filesystem::perms::owner_write,
                                 std::filesystem::perm_options::add);
    EXPECT_TRUE(cache.set(file, W("g"), W("k"), W("other")));

    // Too large to be held.
    sandbox.write(W("large.ini"), "[g]\nk=v\n");
    std::filesystem::resize_file(sandbox.native(W("large.ini")), (64u << 20) + 1);
    EXPECT_EQ(cache.get(sandbox.path(W("large.ini")), W("g"), W("k")), W("<none>"));
    EXPECT_FALSE(cache.set(sandbox.path(W("large.ini")), W("g"), W("k"), W("v")));
    EXPECT_EQ(std::filesystem::file_size(sandbox.native(W("large.ini"))), (64u << 20) + 1);
}

TEST_F(BuiltInIniCache, makesItsOwnConfigurationDirectoryAndNoOther)
{
    const std::u8string place = sandbox.native(W("Deep\\Cfg")).u8string();
    sandbox.setEnvironment("ZU_CFG_DIR", std::string(place.begin(), place.end()));
    EXPECT_FALSE(cache.set(sandbox.path(W("deep\\zu.ini")), W("g"), W("k"), W("v")));
    EXPECT_TRUE(cache.set(sandbox.path(W("deep\\cfg\\zu.ini")), W("g"), W("k"), W("v")));
    EXPECT_TRUE(sandbox.exists(W("Deep\\Cfg\\zu.ini")));
}

TEST_F(BuiltInIniCache, withoutMemoryItAnswersAbsentAndWritesNothing)
{
    const std::string before = "[g]\nkey=value\n";
    sandbox.write(W("zu.ini"), before);
    bool set = false;
    sweepAllocations(
        [&] {
            CacheDriver fresh(host::makeBuiltInIniCache());
            if (fresh.operator->() == nullptr)
                return;
            fresh.get(file, W("g"), W("key"));
            set = fresh.set(file, W("g"), W("another key"), W("another value"));
        },
        [&] {
            // Memory may run out after the file was written, which is no failure then.
            EXPECT_EQ(sandbox.read(W("zu.ini")), set ? before + "another key=another value\n" : before);
            sandbox.write(W("zu.ini"), before);
            set = false;
        });
    EXPECT_TRUE(set);
}

TEST_F(BuiltInIniCache, badArguments)
{
    sandbox.write(W("zu.ini"), "[g]\nk=v\n");
    VARIANT_BOOL flag = 0;
    Bstr text;
    EXPECT_EQ(cache->GetValue(cache.bstr(file), nullptr, nullptr, text.out(), &flag), S_OK);
    EXPECT_EQ(flag, VARIANT_FALSE);
    EXPECT_EQ(cache->GetValue(nullptr, nullptr, nullptr, nullptr, &flag), E_POINTER);
    EXPECT_EQ(cache->GetValue(nullptr, nullptr, nullptr, text.out(), nullptr), E_POINTER);
    EXPECT_EQ(cache->SetValue(cache.bstr(file), nullptr, nullptr, nullptr, &flag), S_OK);
    EXPECT_EQ(flag, VARIANT_FALSE);
    EXPECT_EQ(cache->AddGroup(nullptr, nullptr, nullptr), E_POINTER);
    EXPECT_EQ(cache->GetGroups(nullptr, nullptr), E_POINTER);
    EXPECT_EQ(cache->Reserved1(), E_NOTIMPL);
    const auto group = cache.group(file, W("g"));
    EXPECT_EQ(group->get_Item(indexOf(VT_I4, 0), nullptr), E_POINTER);
    EXPECT_TRUE(
        allAre(E_POINTER, {group->RemoveAll(nullptr), group->get_Count(nullptr), group->get_Name(nullptr),
                           cache->SetValue(nullptr, nullptr, nullptr, nullptr, nullptr),
                           cache->RemoveGroup(nullptr, nullptr, nullptr), cache->GetGroup(nullptr, nullptr, nullptr)}));
    EXPECT_EQ(sandbox.read(W("zu.ini")), "[g]\nk=v\n");
}

} // namespace
