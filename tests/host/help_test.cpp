#include "host/modules.h"
#include "support/process.h"
#include "support/sandbox.h"
#include "zu_Global.h"
#include "zu_Help.h"
#include "zu_Host.h"

namespace fs = std::filesystem;

namespace {

using namespace zutest;

void* pointer(intptr_t value)
{
    return reinterpret_cast<void*>(value);
}

// Says what the help operations return in "out.txt", and has its messages in "boxes.txt".
int askForHelp(const std::vector<Wide>&)
{
    std::optional<LoadedModule> companion;
    if (const char* const file = std::getenv("ZU_TEST_PRELOAD"))
        companion.emplace(std::filesystem::path(file));
    if (std::freopen("boxes.txt", "wb", stderr) == nullptr)
        return 2;
    zu_Host_setBuiltIn(1);
    std::FILE* const out = std::fopen("out.txt", "wb");
    const auto say = [&](intptr_t result) {
        std::fprintf(out, "%d\n", static_cast<int>(result));
    };
    say(zu_Help_Initialize());
    say(zu_Help_DisplayContext(pointer(1), pointer(2), pointer(3), 4));
    say(zu_Help_DisplayTopic(pointer(5), pointer(6), pointer(7)));
    std::fclose(out);
    zu_Global_destroyData();
    return 0;
}
const HelperRole helpRole("help", askForHelp);

// Where a companion library is for a program that looks for it.
enum class Place
{
    nowhere,
    loaded,
    binaryDirectory,
    searchPath
};

const std::string allHelp = "41\n4321\n-765\n";
const std::string noHelp = "0\n0\n0\n";

// What the user is told, once a call.
std::string threeTimes(const std::string& text)
{
    return text + text + text;
}
const std::string alert =
    threeTimes("nobody 8208 Unable to load the Morvek help Interface library/The most likely cause is that Microsoft "
               "Internet Explorer is not loaded./Please install Microsoft Internet Explorer 4.0x from the Morvek "
               "distribution disk./\n");
const std::string box = threeTimes(
    "MFC Interface Error: Unable to load the Morvek MFC Interface library\nThe most likely cause is that the correct "
    "MFC DLL does not exist in your system area\nPlease check the installation of this product from the Morvek "
    "distribution disk.\n\n");

class Help : public testing::Test
{
protected:
    Help()
    {
        fs::current_path(sandbox.native());
        fs::create_directories(sandbox.native(W("Programs")));
        fs::create_directories(sandbox.native(W("Search")));
        sandbox.setEnvironment("ZU_CFG_DIR", ".");
        sandbox.write(W("zu.ini"), "[GENERAL]\nZU_BIN_DIR=Programs\n");
        sandbox.setEnvironment("ZU_MESSAGE_BOX", "console");
        sandbox.setEnvironment("ZU_TEST_PRELOAD", std::nullopt);
        // Where the systems look for libraries by their bare names.
        sandbox.setEnvironment("LD_LIBRARY_PATH", "Search");
        if (fs::path::preferred_separator == '\\')
            sandbox.setEnvironment("PATH", std::string("Search;") + std::getenv("PATH"));
    }

    static fs::path libraryName(const std::string& name)
    {
        return fs::path::preferred_separator == '\\' ? name + ".dll" : "lib" + name + ".so";
    }

    // Puts a library of the tests into its place under the name of a companion.
    void put(Place place, const std::string& built, const std::string& name)
    {
        if (place == Place::nowhere)
            return;
        const WideLiteral directory = place == Place::binaryDirectory ? W("Programs")
                                      : place == Place::searchPath    ? W("Search")
                                                                      : W("");
        const fs::path file = sandbox.native(directory) / libraryName(name);
        fs::copy_file(programDirectory() / libraryName(built), file);
        if (place == Place::loaded)
            sandbox.setEnvironment("ZU_TEST_PRELOAD", "./" + libraryName(name).string());
    }

    // Where the program finds the page viewer, which every Windows has.
    void putPageViewer()
    {
        if (fs::path::preferred_separator != '\\')
            sandbox.write(W("mshtml.dll"), "");
    }

    // Asks for help in a process in which no companion library is loaded yet.
    void ask() { EXPECT_EQ(HelperProcess("help", {}).wait(), 0); }
    std::string read(WideView name) const
    {
        std::string text = sandbox.exists(name) ? sandbox.read(name) : std::string();
        text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
        return text;
    }

    Sandbox sandbox;
};

class HelpIn : public Help, public testing::WithParamInterface<Place>
{
};

TEST_P(HelpIn, theLibraryIsCalledWhereverItIs)
{
    put(GetParam(), "zu_test_help_library", "zu_HLP18AN");
    putPageViewer();
    ask();
    EXPECT_EQ(read(W("out.txt")), allHelp);
    EXPECT_EQ(read(W("boxes.txt")), "");
}

INSTANTIATE_TEST_SUITE_P(Places, HelpIn, testing::Values(Place::loaded, Place::binaryDirectory, Place::searchPath));

TEST_F(Help, anOperationThatItLacksAnswersNothing)
{
    put(Place::searchPath, "zu_test_old_help_library", "zu_HLP18AN");
    putPageViewer();
    ask();
    EXPECT_EQ(read(W("out.txt")), "41\n4321\n0\n");
    EXPECT_EQ(read(W("boxes.txt")), "");
}

TEST_F(Help, theUiLibraryTellsThatThereIsNone)
{
    put(Place::searchPath, "zu_test_ui_library", "ZU_MFC18AN");
    putPageViewer();
    ask();
    EXPECT_EQ(read(W("out.txt")), noHelp);
    EXPECT_EQ(read(W("alert.txt")), alert);
    EXPECT_EQ(read(W("boxes.txt")), "");
}

TEST_F(Help, theUiLibraryIsUsedWhenItIsLoaded)
{
    put(Place::loaded, "zu_test_ui_library", "ZU_MFC18AN");
    ask();
    EXPECT_EQ(read(W("out.txt")), noHelp);
    EXPECT_EQ(read(W("alert.txt")), alert);
}

TEST_F(Help, aBoxTellsWhenThereIsNoUiLibraryEither)
{
    // Nobody looks for it in the binary directory.
    put(Place::binaryDirectory, "zu_test_ui_library", "ZU_MFC18AN");
    ask();
    EXPECT_EQ(read(W("out.txt")), noHelp);
    EXPECT_EQ(read(W("alert.txt")), "");
    EXPECT_EQ(read(W("boxes.txt")), box);
}

TEST_F(Help, aUiLibraryWithoutAlertsIsSilent)
{
    put(Place::searchPath, "zu_test_plain", "ZU_MFC18AN");
    ask();
    EXPECT_EQ(read(W("out.txt")), noHelp);
    EXPECT_EQ(read(W("boxes.txt")), "");
}

#if !defined(_WIN32)

TEST_F(Help, theLibraryNeedsAPageViewer)
{
    put(Place::searchPath, "zu_test_help_library", "zu_HLP18AN");
    put(Place::searchPath, "zu_test_ui_library", "ZU_MFC18AN");
    ask();
    EXPECT_EQ(read(W("out.txt")), noHelp);
    EXPECT_EQ(read(W("alert.txt")), alert);
    sandbox.write(W("Search\\mshtml.dll"), "");
    sandbox.setEnvironment("PATH", "/bin::Search");
    ask();
    EXPECT_EQ(read(W("out.txt")), allHelp) << "along PATH";
}

#endif

} // namespace
