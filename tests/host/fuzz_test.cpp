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

void replay(Target target, const std::string& corpus)
{
    std::mt19937 random(20);
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(std::string(ZU_FUZZ_CORPUS) + corpus)) {
        std::ifstream file(entry.path(), std::ios::binary);
        std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
        run(target, bytes);
        for (int round = 0; round < 3'000 && !bytes.empty(); ++round) { // damage piles up
            bytes[random() % bytes.size()] = static_cast<char>(random());
            run(target, bytes);
        }
        ++files;
    }
    EXPECT_GE(files, 2);
}

TEST(Fuzz, versionBlocks)
{
    replay(zuFuzzVersion, "version");
}

TEST(Fuzz, registryTexts)
{
    replay(zuFuzzRegistry, "registry");
}

} // namespace
