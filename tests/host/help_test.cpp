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

// A directory with places for companion libraries.
class World
{
public:
    World()
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

TEST(Help, whatTheCompanionsMakeOfIt)
{
    const char* const help = "zu_test_help_library";
    const char* const ui = "zu_test_ui_library";
    const struct
    {
        const char* what;
        Place helpPlace;
        const char* helpLibrary;
        Place uiPlace;
        const char* uiLibrary;
        std::string said;
        std::string alerted;
        std::string boxes;
    } rows[] = {
        {"in the binary directory", Place::binaryDirectory, help, Place::nowhere, ui, allHelp, "", ""},
        {"along the path", Place::searchPath, help, Place::nowhere, ui, allHelp, "", ""},
        {"the UI library tells", Place::nowhere, help, Place::searchPath, ui, noHelp, alert, ""},
        {"the UI library is loaded", Place::nowhere, help, Place::loaded, ui, noHelp, alert, ""},
        {"nobody looks for it there", Place::nowhere, help, Place::binaryDirectory, ui, noHelp, "", box},
        {"no alerts in it", Place::nowhere, help, Place::searchPath, "zu_test_plain", noHelp, "", ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        World world;
        world.put(row.helpPlace, row.helpLibrary, "zu_HLP18AN");
        world.put(row.uiPlace, row.uiLibrary, "ZU_MFC18AN");
        world.putPageViewer();
        world.ask();
        EXPECT_EQ(world.read(W("out.txt")), row.said);
        EXPECT_EQ(world.read(W("alert.txt")), row.alerted);
        EXPECT_EQ(world.read(W("boxes.txt")), row.boxes);
    }
}

#if !defined(_WIN32)

TEST(Help, theLibraryNeedsAPageViewer)
{
    World world;
    world.put(Place::searchPath, "zu_test_help_library", "zu_HLP18AN");
    world.put(Place::searchPath, "zu_test_ui_library", "ZU_MFC18AN");
    world.ask();
    EXPECT_EQ(world.read(W("out.txt")), noHelp);
    EXPECT_EQ(world.read(W("alert.txt")), alert);
    world.sandbox.write(W("Search\\mshtml.dll"), "");
    world.sandbox.setEnvironment("PATH", "/bin::Search");
    world.ask();
    EXPECT_EQ(world.read(W("out.txt")), allHelp) << "along PATH";
}

#endif

} // namespace
