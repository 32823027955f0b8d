// What becomes of INI files when processes write at the same time, die while writing, or run out of disk or rights.
#include "ini_cache_driver.h"
#include "support/process.h"
#include "support/sandbox.h"

#include <chrono>
#include <random>
#include <thread>

#if defined(__linux__)
#    include <csignal>
#    include <sched.h>
#    include <sys/mount.h>
#    include <sys/resource.h>
#    include <unistd.h>
#endif

namespace {

using namespace zutest;

Wide decimal(int number)
{
    return widen(std::to_string(number));
}

// Two writers --------------------------------------------------------------------------------------------------------

// Arguments: file, prefix of the keys, their number. Every write must succeed.
const HelperRole writer("ini-writer", [](const std::vector<Wide>& arguments) {
    CacheDriver cache;
    const int count = std::stoi(std::string(arguments[2].begin(), arguments[2].end()));
    for (int number = 0; number < count; ++number) {
        const Wide key = arguments[1] + decimal(number);
        if (!cache.set(arguments[0], W("shared"), key, W("of ") + key))
            return 1;
    }
    return 0;
});

TEST(IniCacheTorture, writersAtTheSameTimeLoseNothing)
{
    Sandbox sandbox;
    const Wide file = sandbox.path(W("zu.ini"));
    const std::string before = "; top\n[old]\nk=v\n\n[shared]\n; here\n";
    sandbox.write(W("zu.ini"), before);
    constexpr int each = 60;
    {
        HelperProcess first("ini-writer", {file, W("first"), decimal(each)});
        HelperProcess second("ini-writer", {file, W("second"), decimal(each)});
        CacheDriver here;
        for (int number = 0; number < each; ++number)
            EXPECT_TRUE(here.set(file, W("shared"), W("here") + decimal(number), W("x")));
        EXPECT_EQ(first.wait(), 0);
        EXPECT_EQ(second.wait(), 0);
    }
    CacheDriver cache;
    for (int number = 0; number < each; ++number) {
        for (const Wide prefix : {W("first"), W("second")}) {
            const Wide key = prefix + decimal(number);
            EXPECT_EQ(cache.get(file, W("shared"), key), W("of ") + key);
        }
        EXPECT_EQ(cache.get(file, W("shared"), W("here") + decimal(number)), W("x"));
    }
    const std::string after = sandbox.read(W("zu.ini"));
    const std::string head = before.substr(0, before.find("; here"));
    EXPECT_TRUE(after.starts_with(head) && after.ends_with("\n; here\n")) << after;
    EXPECT_EQ(std::count(after.begin(), after.end(), '\n'), 6 + 3 * each) << "no line more";
}

// A writer that dies -------------------------------------------------------------------------------------------------

// A file's content is whole when the value, of varying length, ends as it was written.
const HelperRole endless("ini-endless", [](const std::vector<Wide>& arguments) {
    CacheDriver cache;
    for (int number = 0;; ++number) {
        if (!cache.set(arguments[0], W("g"), W("k"),
                       W("<") + Wide(static_cast<std::size_t>(number * 997 % 20'000), W('x')) + W(">")))
            return 1;
    }
});

TEST(IniCacheTorture, aWriterThatIsKilledLeavesAWholeFile)
{
    Sandbox sandbox;
    const Wide file = sandbox.path(W("zu.ini"));
    std::mt19937 random(7);
    for (int round = 0; round < 12; ++round) {
        const std::string before = "[g]\nfirst=1\nk=<>\nlast=" + std::to_string(round) + "\n";
        sandbox.write(W("zu.ini"), before);
        {
            HelperProcess process("ini-endless", {file});
            const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
            while (sandbox.read(W("zu.ini")) == before && std::chrono::steady_clock::now() < deadline)
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
            std::this_thread::sleep_for(std::chrono::microseconds(random() % 20'000));
            process.kill();
        }
        const std::string after = sandbox.read(W("zu.ini"));
        ASSERT_NE(after, before) << "nothing was written";
        const std::size_t start = after.find("k=<");
        const std::size_t end = after.find('>');
        ASSERT_EQ(after.substr(0, start + 3), "[g]\nfirst=1\nk=<") << round;
        ASSERT_EQ(after.substr(end), ">\nlast=" + std::to_string(round) + "\n") << round;
        ASSERT_EQ(after.find_first_not_of('x', start + 3), end) << round;
        // Its lock is gone with it.
        CacheDriver cache;
        ASSERT_TRUE(cache.set(file, W("g"), W("k"), W("after")));
    }
}

#if defined(__linux__)

// A full disk --------------------------------------------------------------------------------------------------------

// Tries to write more than there is room for. Returns 0 when the file is as it was and nothing else is left.
int writeTooMuch(const Wide& file)
{
    CacheDriver cache;
    if (!cache.set(file, W("g"), W("k"), W("small")))
        return 2;
    if (cache.set(file, W("g"), W("k"), Wide(100'000, W('x'))))
        return 3;
    if (cache.get(file, W("g"), W("k")) != W("small"))
        return 4;
    CacheDriver fresh;
    if (fresh.get(file, W("g"), W("k")) != W("small"))
        return 5;
    return cache.set(file, W("g"), W("k"), W("still works")) ? 0 : 6;
}

// On a file system of its own that is small, in a name space of its own. Arguments: directory, file in it.
const HelperRole fullDisk("ini-full-disk", [](const std::vector<Wide>& arguments) {
    const std::string place = std::filesystem::path(arguments[0]).string();
    if (::unshare(CLONE_NEWNS) != 0 || ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        ::mount("tmpfs", place.c_str(), "tmpfs", 0, "size=64k") != 0)
        return 77;
    const int result = writeTooMuch(arguments[1]);
    if (result != 0)
        return result;
    return std::distance(std::filesystem::directory_iterator(place), {}) == 1 ? 0 : 7;
});

// With a limit on the size of files, which every user may set.
const HelperRole limited("ini-limited", [](const std::vector<Wide>& arguments) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit = {50'000, 50'000};
    return ::setrlimit(RLIMIT_FSIZE, &limit) == 0 ? writeTooMuch(arguments[0]) : 77;
});

TEST(IniCacheTorture, aFullDiskLeavesTheOldFile)
{
    Sandbox sandbox;
    std::filesystem::create_directory(sandbox.native(W("disk")));
    HelperProcess disk("ini-full-disk", {Wide(sandbox.native(W("disk")).u16string()), sandbox.path(W("disk\\zu.ini"))});
    const int onDisk = disk.wait();
    EXPECT_TRUE(onDisk == 0 || onDisk == 77) << onDisk; // 77: mounting is not allowed here
    HelperProcess limit("ini-limited", {sandbox.path(W("zu.ini"))});
    EXPECT_EQ(limit.wait(), 0);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(sandbox.native()), {}), 2) << "disk and file";
}

// No rights ----------------------------------------------------------------------------------------------------------

// As a user without rights: a file that cannot be read must not be taken for an empty one.
const HelperRole stranger("ini-stranger", [](const std::vector<Wide>& arguments) {
    if (::geteuid() == 0 && ::setuid(65534) != 0)
        return 77;
    CacheDriver cache;
    if (cache.get(arguments[0], W("g"), W("k")) != W("<none>"))
        return 2;
    if (cache.set(arguments[0], W("g"), W("k"), W("other")) || cache.add(arguments[0], W("h")))
        return 3;
    return cache.set(arguments[1], W("g"), W("k"), W("v")) ? 0 : 4; // the directory itself lets him write
});

TEST(IniCacheTorture, anUnreadableFileIsLeftAlone)
{
    Sandbox sandbox;
    namespace fs = std::filesystem;
    sandbox.write(W("zu.ini"), "[g]\nk=v\n");
    fs::permissions(sandbox.native(), fs::perms::all);
    fs::permissions(sandbox.native(W("zu.ini")), fs::perms::none);
    HelperProcess process("ini-stranger", {sandbox.path(W("zu.ini")), sandbox.path(W("own.ini"))});
    EXPECT_EQ(process.wait(), 0);
    fs::permissions(sandbox.native(W("zu.ini")), fs::perms::owner_all);
    EXPECT_EQ(sandbox.read(W("zu.ini")), "[g]\nk=v\n");
}

#endif

} // namespace
