// The hot string operations against their counterparts of the standard library and GLib, which work on UTF-8.
//
//     cmake --preset bench && cmake --build --preset bench && build/bench/bin/zu_bench_strings
#include "zu_Memory.h"
#include "zu_Str.h"

#include <benchmark/benchmark.h>
#include <glib.h>

#include <string>

namespace {

using Wide = std::basic_string<zu_wchar>;

constexpr const char* ascii = "D:\\Projects\\Plant 12\\Specifications\\Pipe Class A1B\\elbow_90_long_radius.dat";

Wide widen(const std::string& text)
{
    return Wide(text.begin(), text.end());
}

// Comparing ignoring case --------------------------------------------------------------------------------------------

void compareZu(benchmark::State& state)
{
    const Wide a = widen(ascii);
    Wide b = a;
    zu_Str_toUpper(b.data(), b.c_str());
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(zu_Str_cmpi(a.c_str(), b.c_str()));
}

void compareGlib(benchmark::State& state)
{
    const std::string a = ascii;
    gchar* const b = g_ascii_strup(ascii, -1);
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(g_ascii_strcasecmp(a.c_str(), b));
    g_free(b);
}

// Searching ----------------------------------------------------------------------------------------------------------

void indexZu(benchmark::State& state)
{
    const Wide text = widen(ascii);
    const auto ignoreCase = static_cast<int32_t>(state.range(0));
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(zu_Str_index(text.c_str(), ZU_W("radius"), ignoreCase));
}

void indexStd(benchmark::State& state)
{
    const Wide text = widen(ascii);
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(text.find(ZU_W("radius")));
}

void indexGlib(benchmark::State& state)
{
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(g_strstr_len(ascii, -1, "radius"));
}

void wildcardZu(benchmark::State& state)
{
    const Wide text = widen(ascii);
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(zu_Str_matchWildcard(text.c_str(), ZU_W("D:*elbow*.dat")));
}

void wildcardGlib(benchmark::State& state)
{
    GPatternSpec* const pattern = g_pattern_spec_new("D:*elbow*.dat");
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(g_pattern_spec_match_string(pattern, ascii));
    g_pattern_spec_free(pattern);
}

// Copying and editing ------------------------------------------------------------------------------------------------

void duplicateZu(benchmark::State& state)
{
    const Wide text = widen(ascii);
    for ([[maybe_unused]] auto round : state)
        zu_Free(zu_Str_dup(text.c_str()));
}

void duplicateStd(benchmark::State& state)
{
    const Wide text = widen(ascii);
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(Wide(text.c_str()));
}

void duplicateGlib(benchmark::State& state)
{
    for ([[maybe_unused]] auto round : state)
        g_free(g_strdup(ascii));
}

void trimZu(benchmark::State& state)
{
    const Wide text = ZU_W("    ") + widen(ascii) + ZU_W("    ");
    zu_wchar buffer[128];
    for ([[maybe_unused]] auto round : state) {
        zu_Str_cpy(buffer, text.c_str());
        zu_Str_delBlks(buffer);
        benchmark::DoNotOptimize(buffer);
    }
}

void trimGlib(benchmark::State& state)
{
    const std::string text = std::string("    ") + ascii + "    ";
    char buffer[128];
    for ([[maybe_unused]] auto round : state) {
        g_strlcpy(buffer, text.c_str(), sizeof buffer);
        benchmark::DoNotOptimize(g_strstrip(buffer));
    }
}

void replaceZu(benchmark::State& state)
{
    const Wide text = widen(ascii);
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(zu_Str_replaceChar(text.c_str(), ZU_W("\\"), ZU_W("//")));
}

void replaceGlib(benchmark::State& state)
{
    GString* const text = g_string_new(ascii);
    for ([[maybe_unused]] auto round : state) {
        g_string_assign(text, ascii);
        benchmark::DoNotOptimize(g_string_replace(text, "\\", "//", 0));
    }
    g_string_free(text, TRUE);
}

// Taking apart -------------------------------------------------------------------------------------------------------

void splitZu(benchmark::State& state)
{
    const Wide text = widen(ascii);
    for ([[maybe_unused]] auto round : state)
        zu_StrList_destroy(zu_StrList_fromDelimitedString(text.c_str(), ZU_W("\\")));
}

void splitGlib(benchmark::State& state)
{
    for ([[maybe_unused]] auto round : state)
        g_strfreev(g_strsplit(ascii, "\\", -1));
}

void tokenZu(benchmark::State& state)
{
    const Wide text = widen(ascii);
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(zu_Str_getRightNthToken(text.c_str(), ZU_W("\\"), 1, nullptr));
}

BENCHMARK(compareZu);
BENCHMARK(compareGlib);
BENCHMARK(indexZu)->Arg(0)->Arg(1);
BENCHMARK(indexStd);
BENCHMARK(indexGlib);
BENCHMARK(wildcardZu);
BENCHMARK(wildcardGlib);
BENCHMARK(duplicateZu);
BENCHMARK(duplicateStd);
BENCHMARK(duplicateGlib);
BENCHMARK(trimZu);
BENCHMARK(trimGlib);
BENCHMARK(replaceZu);
BENCHMARK(replaceGlib);
BENCHMARK(splitZu);
BENCHMARK(splitGlib);
BENCHMARK(tokenZu);

} // namespace
