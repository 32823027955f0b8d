// The fuzz targets over their corpora, and over what damage makes of them.
#include "support/wide.h"

#include <filesystem>
#include <fstream>
#include <random>

extern "C" int zuFuzzVersion(const std::uint8_t* data, std::size_t size);
extern "C" int zuFuzzRegistry(const std::uint8_t* data, std::size_t size);

namespace {

using Target = int (*)(const std::uint8_t* data, std::size_t size);

void run(Target target, const std::string& bytes)
{
    target(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

// A few bytes changed, put in, or taken out; the marks are what the format lives on.
std::string damaged(std::string bytes, std::string_view marks, std::mt19937& random)
{
    for (std::size_t change = 0; change < 1 + random() % 5 && !bytes.empty(); ++change) {
        const std::size_t at = random() % bytes.size();
        switch (random() % 8) {
        case 0: bytes.erase(at, random() % 30); break;
        case 1: bytes.insert(at, 1 + random() % 2, marks[random() % marks.size()]); break;
        case 2: bytes.insert(at, bytes, random() % bytes.size(), random() % 60); break;
        case 3: bytes[at] = static_cast<char>(random()); break;
        default: bytes[at] = marks[random() % marks.size()]; break;
        }
    }
    return bytes;
}

void replay(Target target, const std::string& corpus, std::string_view marks)
{
    std::mt19937 random(20);
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(std::string(ZU_FUZZ_CORPUS) + corpus)) {
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
        run(target, bytes);
        for (int round = 0; round < 3'000; ++round)
            run(target, damaged(bytes, marks, random));
        ++files;
    }
    EXPECT_GE(files, 2);
}

TEST(Fuzz, versionBlocks)
{
    using namespace std::string_view_literals;
    replay(zuFuzzVersion, "version", "\0\1\4\6\7\x34\x80\xFF"sv);
}

TEST(Fuzz, registryTexts)
{
    using namespace std::string_view_literals;
    replay(zuFuzzRegistry, "registry", "\\\\\"[]=-,;\n\r:@ 0\0\xFF"sv);
}

} // namespace
