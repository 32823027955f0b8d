#include "host/registry.h"
#include "zu_Sys.h"

namespace {

using namespace zutest;

const Wide uninstall = W("Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\");

struct Product
{
    WideLiteral key;
    WideLiteral name;
    WideLiteral version; // null: it has none
};

void install(Registry& registry, const std::vector<Product>& products)
{
    for (const Product& product : products) {
        registry.addText(uninstall + product.key, W("DisplayName"), product.name);
        if (product.version != nullptr)
            registry.addText(uninstall + product.key, W("DisplayVersion"), product.version);
    }
}

TEST(ProductVersion, whichProductCounts)
{
    // The keys are visited in alphabetical order.
    const std::tuple<const char*, std::vector<Product>, WideLiteral> rows[] = {
        {"exactly, in any case", {{W("zuA"), W("ZU ALPHA"), W("1.100")}}, W("1..100")},
        {"the last one that begins so",
         {{W("zuA"), W("zu Alpha 1"), W("1.100")}, {W("zub"), W("zu Alpha 2"), W("2.200")}},
         W("2..200")},
        {"the exact one before a later one",
         {{W("zuA"), W("zu Alpha"), W("1.100")}, {W("zuB"), W("zu Alpha 2"), W("2.200")}},
         W("1..100")},
        {"no other one after the 64-bit one",
         {{W("zuA"), W("Zu Alpha - x64"), W("1.100")}, {W("zuB"), W("zu Alpha 2"), W("2.200")}},
         W("1..100")},
        {"the exact one after the 64-bit one",
         {{W("zuA"), W("zu Alpha - X64"), W("1.100")}, {W("zuB"), W("zu Alpha"), W("2.200")}},
         W("2..200")},
        {"the exact one without a version keeps the one before",
         {{W("zuA"), W("zu Alpha 1"), W("1.100")},
          {W("zuB"), W("zu Alpha"), nullptr},
          {W("zuC"), W("zu Alpha 3"), W("3.300")}},
         W("1..100")},
    };
    for (const auto& [what, products, version] : rows) {
        Sandbox sandbox;
        Registry registry(sandbox);
        registry.addKey(uninstall + W("zu0"));
        install(registry, products);
        EXPECT_EQ(str(zu_Sys_getProductVersion(W("zu Alpha"))), version) << what;
    }
}

TEST(ProductVersion, theBuildNumberIsSeparated)
{
    const Wide longest(127, W('7'));
    const std::tuple<const char*, Wide, Wide> rows[] = {
        {"a zero gives way", W("8.11.09045"), W("8.11.09.45")},
        {"dotted already", W("8.11.9"), W("8.1.1.9")},
        {"two characters", W("45"), W("45")},
        {"256 bytes", longest, longest.substr(3) + W(".777")},
        {"258 bytes are not read", longest + W("7"), Wide()},
    };
    for (const auto& [what, stored, version] : rows) {
        Sandbox sandbox;
        Registry registry(sandbox);
        install(registry, {{W("zuA"), W("zu Beta \u0416"), stored.c_str()}});
        EXPECT_EQ(str(zu_Sys_getProductVersion(W("zu Beta \u0416"))), version) << what;
    }
}

TEST(ProductVersion, noVersionAndLongNames)
{
    Sandbox sandbox;
    Registry registry(sandbox);
    install(registry, {{W("zuA"), W("zu Gamma"), nullptr}});
    EXPECT_EQ(str(zu_Sys_getProductVersion(W("zu Gamma"))), W(""));
    EXPECT_EQ(zu_Sys_getProductVersion(nullptr), nullptr);
    // A name of 128 units takes more than 256 bytes with its terminator.
    const Wide name(128, W('g'));
    install(registry, {{W("zuB"), name.c_str(), W("1.100")}, {W("zuC"), name.c_str() + 1, W("1.100")}});
    EXPECT_EQ(str(zu_Sys_getProductVersion(name.c_str())), W(""));
    EXPECT_EQ(str(zu_Sys_getProductVersion(name.c_str() + 1)), W("1..100"));
}

#if !defined(_WIN32)

const std::string section = "\n[HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\{A}]\n";

// What zu_Sys_getProductVersion reads for "P" from a registry text.
Wide versionIn(std::string_view text)
{
    Sandbox sandbox;
    sandbox.write(W("r.reg"), text);
    sandbox.setEnvironment("ZU_REGISTRY", sandbox.native(W("r.reg")).string());
    return str(zu_Sys_getProductVersion(W("P")));
}

TEST(RegistryText, forms)
{
    const std::string name = section + "\"DisplayName\"=\"P\"\n";
    const std::tuple<const char*, std::string, WideLiteral> rows[] = {
        {"marked as UTF-8", "\xEF\xBB\xBF" + name + "\"DisplayVersion\"=\"\xC3\xA4\"\r\n", W("\u00e4")},
        {"escapes", name + "\"DisplayVersion\"=\"\\\\\\\"\"", W("\\\"")},
        {"comments", name + "; \"DisplayVersion\"=\"x\" \\\n\"DisplayVersion\"=\"ab\"", W("ab")},
        {"bytes over lines, without a terminator", name + "\"DisplayVersion\"=hex(1):61,\\\r\n  00, \\\r\n  62,00",
         W("ab")},
        {"taken back", name + "\"DisplayVersion\"=\"a\"\n\"DisplayVersion\"=-", W("")},
        {"in two places", name + section + "\"DisplayVersion\"=\"ab\"", W("ab")},
        {"key taken back",
         name + "\"DisplayVersion\"=\"ab\"\n[-HKEY_LOCAL_MACHINE\\software\\microsoft\\windows\\currentversion\\"
                "uninstall\\{a}]\n\"DisplayVersion\"=\"x\"",
         W("")},
        {"not the machine's", "[HKEY_CURRENT_USER" + section.substr(20) + "\"DisplayName\"=\"P\"", W("<null>")},
    };
    for (const auto& [what, text, version] : rows)
        EXPECT_EQ(versionIn(text), version) << what;
}

TEST(RegistryText, bothByteOrders)
{
    const std::string text = section + "\"DisplayName\"=\"P\"\r\n\"DisplayVersion\"=\"ab\"\r\n";
    std::string little = "\xFF\xFE", big = "\xFE\xFF";
    for (char unit : text) {
        little += {unit, '\0'};
        big += {'\0', unit};
    }
    EXPECT_EQ(versionIn(little), W("ab"));
    EXPECT_EQ(versionIn(big), W("ab"));
    EXPECT_EQ(versionIn(little + "\x5B"), W("ab")) << "half a unit at the end";
}

TEST(RegistryText, noFile)
{
    Sandbox sandbox;
    sandbox.setEnvironment("ZU_REGISTRY", std::nullopt);
    EXPECT_EQ(zu_Sys_getProductVersion(W("P")), nullptr);
    sandbox.setEnvironment("ZU_REGISTRY", sandbox.native().string());
    EXPECT_EQ(zu_Sys_getProductVersion(W("P")), nullptr);
}

#endif

} // namespace
