// Whole-file operations against the system's tools and the standard library. The tools run as processes: starting one
// takes 1 to 2 ms of their time.
//
//     cmake --preset bench && cmake --build --preset bench && build/bench/bin/zu_bench_files
//
// Needs about 1 GB in the directory for temporary files.
#include "zu_Dir.h"
#include "zu_File.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace fs = std::filesystem;

namespace {

using Wide = std::basic_string<zu_wchar>;

constexpr std::size_t megabyte = std::size_t{1} << 20;

// A directory of its own, with the files that the benchmarks read.
class Place
{
public:
    Place() : root(fs::temp_directory_path() / "zu_bench_files")
    {
        fs::remove_all(root);
        fs::create_directories(root / "small");
        writeNoise(large(), 256 * megabyte);
        for (int number = 0; number < 1000; ++number)
            writeNoise(root / "small" / std::to_string(number), 4096);
    }
    ~Place() { fs::remove_all(root); }

    fs::path large() const { return root / "large.bin"; }
    fs::path small() const { return root / "small"; }
    fs::path operator/(const char* name) const { return root / name; }

private:
    static void writeNoise(const fs::path& path, std::size_t size)
    {
        std::vector<char> block(std::min(size, megabyte));
        unsigned seed = 1;
        for (char& byte : block) {
            seed = seed * 1664525u + 1013904223u;
            byte = static_cast<char>(seed >> 24);
        }
        std::ofstream file(path, std::ios::binary);
        for (; size > 0; size -= block.size())
            file.write(block.data(), static_cast<std::streamsize>(block.size()));
    }

    fs::path root;
};

const Place& place()
{
    static const Place made;
    return made;
}

// The path as callers of the library write it.
Wide zuPath(const fs::path& path)
{
    Wide text = path.string<zu_wchar>();
    if (fs::path::preferred_separator == '/') {
        std::replace(text.begin(), text.end(), ZU_W('/'), ZU_W('\\'));
        text.insert(0, ZU_W("C:"));
    }
    return text;
}

// Runs the words as one command line.
bool shell(std::initializer_list<std::string_view> words)
{
    std::string line;
    for (std::string_view word : words)
        line.append(word).append(" ");
    return std::system(line.append("2>&1").c_str()) == 0;
}

std::string quoted(const fs::path& path)
{
    return std::string("'").append(path.string()).append("'");
}

// Times the action alone, after a first time that fills the caches; it tells whether it did its work.
template <class Prepare, class Action>
void measure(benchmark::State& state, Prepare prepare, Action action)
{
    prepare();
    action();
    for ([[maybe_unused]] auto round : state) {
        state.PauseTiming();
        prepare();
        state.ResumeTiming();
        if (!action()) {
            state.SkipWithError("failed");
            break;
        }
    }
}

// Copying and appending 256 MB ---------------------------------------------------------------------------------------

template <class Action>
void makingOne(benchmark::State& state, Action action)
{
    const fs::path target = place() / "target.bin";
    measure(
        state, [&] { fs::remove(target); }, [&] { return action(target); });
    fs::remove(target);
}

void copyZu(benchmark::State& state)
{
    makingOne(state, [](const fs::path& target) {
        return zu_File_copy(zuPath(place().large()).c_str(), zuPath(target).c_str()) == 0;
    });
}

void copyCp(benchmark::State& state)
{
    makingOne(state, [](const fs::path& target) { return shell({"cp", quoted(place().large()), quoted(target)}); });
}

void copyStd(benchmark::State& state)
{
    makingOne(state, [](const fs::path& target) { return fs::copy_file(place().large(), target); });
}

void appendZu(benchmark::State& state)
{
    makingOne(state, [](const fs::path& target) {
        return zu_File_append(zuPath(target).c_str(), zuPath(place().large()).c_str()) == 0;
    });
}

void appendCat(benchmark::State& state)
{
    makingOne(state, [](const fs::path& target) {
        return shell({"cat", quoted(place().large()), ">>", quoted(target)});
    });
}

// Scrambling 256 MB --------------------------------------------------------------------------------------------------

void encryptZu(benchmark::State& state)
{
    makingOne(state, [](const fs::path& target) {
        return zu_File_encrypt(zuPath(target).c_str(), zuPath(place().large()).c_str()) == 1;
    });
}

void encryptByteByByte(benchmark::State& state)
{
    makingOne(state, [](const fs::path& target) {
        std::FILE* const in = std::fopen(place().large().string().c_str(), "rb");
        std::FILE* const out = std::fopen(target.string().c_str(), "wb");
        int byte;
        for (unsigned index = 0; (byte = std::fgetc(in)) != EOF; ++index)
            std::fputc(byte ^ static_cast<int>(index % 251), out);
        std::fclose(in);
        return std::fclose(out) == 0;
    });
}

// A directory of 1,000 small files -----------------------------------------------------------------------------------

template <class Action>
void makingMany(benchmark::State& state, Action action)
{
    const fs::path target = place() / "copies";
    const auto clean = [&] {
        fs::remove_all(target);
        fs::create_directory(target);
    };
    measure(state, clean, [&] { return action(target); });
    fs::remove_all(target);
}

void copyManyZu(benchmark::State& state)
{
    makingMany(state, [](const fs::path& target) {
        for (const auto& entry : fs::directory_iterator(place().small())) {
            const Wide to = zuPath(target / entry.path().filename());
            if (zu_File_copy(zuPath(entry.path()).c_str(), to.c_str()) != 0)
                return false;
        }
        return true;
    });
}

void copyManyCp(benchmark::State& state)
{
    makingMany(state, [](const fs::path& target) {
        return shell({"cp", quoted(place().small()).append("/*"), quoted(target)});
    });
}

void copyManyStd(benchmark::State& state)
{
    makingMany(state, [](const fs::path& target) {
        for (const auto& entry : fs::directory_iterator(place().small()))
            fs::copy_file(entry.path(), target / entry.path().filename());
        return true;
    });
}

template <class Action>
void deletingMany(benchmark::State& state, Action action)
{
    const fs::path target = place() / "copies";
    measure(
        state, [&] { fs::copy(place().small(), target); }, [&] { return action(target); });
}

void deleteTreeZu(benchmark::State& state)
{
    deletingMany(state, [](const fs::path& target) { return zu_Dir_deleteTree(zuPath(target).c_str()) == 0; });
}

void deleteTreeStd(benchmark::State& state)
{
    deletingMany(state, [](const fs::path& target) { return fs::remove_all(target) == 1001; });
}

// Splitting 256 MB into parts of 10 MB, and joining them -------------------------------------------------------------

void removeParts()
{
    for (int number = 1; number <= 27; ++number)
        fs::remove(place().large().replace_extension(std::to_string(number)));
}

void sliceZu(benchmark::State& state)
{
    measure(state, removeParts,
            [] { return zu_File_slice(zuPath(place().large()).c_str(), int32_t{10 * megabyte}) == 26; });
    removeParts();
}

void sliceSplit(benchmark::State& state)
{
    const fs::path parts = place() / "parts";
    const auto clean = [&] {
        fs::remove_all(parts);
        fs::create_directory(parts);
    };
    measure(state, clean, [&] { return shell({"split -b 10M", quoted(place().large()), quoted(parts / "x")}); });
    fs::remove_all(parts);
}

// Both delete the parts.
template <class Action>
void joining(benchmark::State& state, Action action)
{
    const fs::path whole = place() / "mend.bin";
    const auto prepare = [&] {
        fs::copy_file(place().large(), whole, fs::copy_options::overwrite_existing);
        zu_File_slice(zuPath(whole).c_str(), int32_t{10 * megabyte});
        fs::remove(whole);
    };
    measure(state, prepare, [&] { return action(whole); });
    fs::remove(whole);
}

void mendZu(benchmark::State& state)
{
    joining(state, [](const fs::path& whole) { return zu_File_mend(zuPath(whole).c_str()) == 27; });
}

void mendCat(benchmark::State& state)
{
    joining(state, [](const fs::path& whole) {
        const std::string parts = quoted(place() / "mend.").append("[0-9]*");
        return shell({"cat", parts, ">", quoted(whole), "&& rm", parts});
    });
}

// Reading 40 MB of lines of the length given -------------------------------------------------------------------------

template <class Read>
void readingLines(benchmark::State& state, Read read)
{
    const fs::path path = place() / "lines.txt";
    const auto length = static_cast<std::size_t>(state.range(0));
    const std::size_t count = 40'000'000 / length;
    {
        std::ofstream file(path, std::ios::binary);
        const std::string line = std::string(length, 'x').append("\n");
        for (std::size_t written = 0; written < count; ++written)
            file << line;
    }
    measure(
        state, [] {}, [&] { return read(path) == count; });
    fs::remove(path);
}

void readLineZu(benchmark::State& state)
{
    readingLines(state, [](const fs::path& path) {
        std::FILE* const file = std::fopen(path.string().c_str(), "r");
        zu_wchar line[513];
        std::size_t count = 0;
        while (zu_File_readLine(file, line, 512) == 1)
            ++count;
        std::fclose(file);
        return count;
    });
}

void readLineStd(benchmark::State& state)
{
    readingLines(state, [](const fs::path& path) {
        std::ifstream file(path);
        std::size_t count = 0;
        for (std::string line; std::getline(file, line);)
            ++count;
        return count;
    });
}

void readFileZu(benchmark::State& state)
{
    readingLines(state, [](const fs::path& path) {
        StrList* const lines = zu_File_readFile(zuPath(path).c_str());
        const std::size_t count = zu_StrList_count(lines);
        zu_StrList_destroy(lines);
        return count;
    });
}

void readFileStd(benchmark::State& state)
{
    readingLines(state, [](const fs::path& path) {
        std::ifstream file(path);
        std::vector<Wide> lines;
        for (std::string line; std::getline(file, line);)
            lines.emplace_back(line.begin(), line.end());
        return lines.size();
    });
}

// Listing a tenth of 100,000 entries ---------------------------------------------------------------------------------

const fs::path& crowd()
{
    static const fs::path directory = [] {
        fs::path made = place() / "crowd";
        fs::create_directory(made);
        for (int number = 0; number < 100'000; ++number)
            std::ofstream(made / std::to_string(number).append(".txt"));
        return made;
    }();
    return directory;
}

void findZu(benchmark::State& state)
{
    const Wide pattern = zuPath(crowd() / "*5.TXT");
    measure(
        state, [] {},
        [&] {
            zu_wchar name[300];
            std::size_t count = 0;
            for (int32_t found = zu_File_findFirst(pattern.c_str(), name); found == 0; found = zu_File_findNext(name))
                ++count;
            return count == 10'000;
        });
}

void findStd(benchmark::State& state)
{
    crowd();
    measure(
        state, [] {},
        [&] {
            std::vector<std::string> names;
            for (const auto& entry : fs::directory_iterator(crowd())) {
                std::string name = entry.path().filename().string();
                if (name.ends_with("5.txt"))
                    names.push_back(std::move(name));
            }
            std::sort(names.begin(), names.end());
            return names.size() == 10'000;
        });
}

void inMilliseconds(benchmark::internal::Benchmark* run)
{
    run->Unit(benchmark::kMillisecond)->UseRealTime();
}

BENCHMARK(copyZu)->Apply(inMilliseconds);
BENCHMARK(copyCp)->Apply(inMilliseconds);
BENCHMARK(copyStd)->Apply(inMilliseconds);
BENCHMARK(appendZu)->Apply(inMilliseconds);
BENCHMARK(appendCat)->Apply(inMilliseconds);
BENCHMARK(encryptZu)->Apply(inMilliseconds);
BENCHMARK(encryptByteByByte)->Apply(inMilliseconds);
BENCHMARK(copyManyZu)->Apply(inMilliseconds);
BENCHMARK(copyManyCp)->Apply(inMilliseconds);
BENCHMARK(copyManyStd)->Apply(inMilliseconds);
BENCHMARK(deleteTreeZu)->Apply(inMilliseconds);
BENCHMARK(deleteTreeStd)->Apply(inMilliseconds);
BENCHMARK(sliceZu)->Apply(inMilliseconds);
BENCHMARK(sliceSplit)->Apply(inMilliseconds);
BENCHMARK(mendZu)->Apply(inMilliseconds);
BENCHMARK(mendCat)->Apply(inMilliseconds);
BENCHMARK(readLineZu)->Apply(inMilliseconds)->Arg(20)->Arg(80)->Arg(400);
BENCHMARK(readLineStd)->Apply(inMilliseconds)->Arg(20)->Arg(80)->Arg(400);
BENCHMARK(readFileZu)->Apply(inMilliseconds)->Arg(20)->Arg(80)->Arg(400);
BENCHMARK(readFileStd)->Apply(inMilliseconds)->Arg(20)->Arg(80)->Arg(400);
BENCHMARK(findZu)->Apply(inMilliseconds);
BENCHMARK(findStd)->Apply(inMilliseconds);

} // namespace
