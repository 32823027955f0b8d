// The list against std::list, std::vector and GLib's list: filling, walking, sorting, deleting duplicates.
//
//     cmake --preset bench && cmake --build --preset bench && build/bench/bin/zu_bench_containers
#include "zu_LnkList.h"
#include "zu_StrList.h"

#include <benchmark/benchmark.h>
#include <glib.h>

#include <algorithm>
#include <list>
#include <random>
#include <string>
#include <unordered_set>
#include <vector>

namespace {

using Wide = std::basic_string<zu_wchar>;

std::vector<int> numbers(std::int64_t count)
{
    std::mt19937 random(1);
    std::vector<int> result(static_cast<std::size_t>(count));
    for (int& number : result)
        number = static_cast<int>(random() % 1'000'000);
    return result;
}

int32_t compareNumbers(const void* a, const void* b)
{
    const int first = *static_cast<const int*>(a);
    const int second = *static_cast<const int*>(b);
    return (first > second) - (first < second);
}

bool isLess(const void* a, const void* b)
{
    return compareNumbers(a, b) < 0;
}

LnkList* listOf(std::vector<int>& elements)
{
    LnkList* const list = zu_LnkList_create(nullptr);
    for (int& element : elements)
        zu_LnkList_insEnd(list, &element);
    return list;
}

GList* glibListOf(std::vector<int>& elements)
{
    GQueue queue = G_QUEUE_INIT;
    for (int& element : elements)
        g_queue_push_tail(&queue, &element);
    return queue.head;
}

// Filling ------------------------------------------------------------------------------------------------------------

void fillZu(benchmark::State& state)
{
    std::vector<int> elements = numbers(state.range(0));
    for ([[maybe_unused]] auto round : state)
        zu_LnkList_destroy(listOf(elements), nullptr);
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void fillGlib(benchmark::State& state)
{
    std::vector<int> elements = numbers(state.range(0));
    for ([[maybe_unused]] auto round : state)
        g_list_free(glibListOf(elements));
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

template <class Container>
void fillStd(benchmark::State& state)
{
    std::vector<int> elements = numbers(state.range(0));
    for ([[maybe_unused]] auto round : state) {
        Container container;
        for (int& element : elements)
            container.push_back(&element);
        benchmark::DoNotOptimize(container);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

// Walking ------------------------------------------------------------------------------------------------------------

void walkZu(benchmark::State& state)
{
    std::vector<int> elements = numbers(state.range(0));
    LnkList* const list = listOf(elements);
    for ([[maybe_unused]] auto round : state) {
        std::int64_t sum = 0;
        for (zu_LnkList_start(list); zu_LnkList_eol(list) == 0; zu_LnkList_next(list))
            sum += *static_cast<int*>(zu_LnkList_getCurr(list));
        benchmark::DoNotOptimize(sum);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    zu_LnkList_destroy(list, nullptr);
}

void walkGlib(benchmark::State& state)
{
    std::vector<int> elements = numbers(state.range(0));
    GList* const list = glibListOf(elements);
    for ([[maybe_unused]] auto round : state) {
        std::int64_t sum = 0;
        for (const GList* node = list; node != nullptr; node = node->next)
            sum += *static_cast<int*>(node->data);
        benchmark::DoNotOptimize(sum);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    g_list_free(list);
}

// Sorting ------------------------------------------------------------------------------------------------------------

void sortZu(benchmark::State& state)
{
    std::vector<int> elements = numbers(state.range(0));
    for ([[maybe_unused]] auto round : state) {
        state.PauseTiming();
        LnkList* const list = listOf(elements);
        state.ResumeTiming();
        zu_LnkList_qSort(list, compareNumbers);
        state.PauseTiming();
        zu_LnkList_destroy(list, nullptr);
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void sortGlib(benchmark::State& state)
{
    std::vector<int> elements = numbers(state.range(0));
    for ([[maybe_unused]] auto round : state) {
        state.PauseTiming();
        GList* list = glibListOf(elements);
        state.ResumeTiming();
        list = g_list_sort(list, compareNumbers);
        state.PauseTiming();
        g_list_free(list);
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void sort(std::list<void*>& list)
{
    list.sort(isLess);
}

void sort(std::vector<void*>& vector)
{
    std::stable_sort(vector.begin(), vector.end(), isLess);
}

template <class Container>
void sortStd(benchmark::State& state)
{
    std::vector<int> elements = numbers(state.range(0));
    for ([[maybe_unused]] auto round : state) {
        state.PauseTiming();
        Container container;
        for (int& element : elements)
            container.push_back(&element);
        state.ResumeTiming();
        sort(container);
        benchmark::DoNotOptimize(container);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

// Duplicates ---------------------------------------------------------------------------------------------------------

std::vector<Wide> repeatedStrings(std::int64_t count)
{
    std::vector<Wide> result;
    for (int number : numbers(count)) {
        const std::string digits = "string " + std::to_string(number % (count / 2));
        result.emplace_back(digits.begin(), digits.end());
    }
    return result;
}

void duplicatesZu(benchmark::State& state)
{
    const std::vector<Wide> strings = repeatedStrings(state.range(0));
    for ([[maybe_unused]] auto round : state) {
        StrList* list = zu_StrList_create(nullptr);
        for (const Wide& string : strings)
            zu_StrList_insEnd(list, string.c_str());
        list = zu_StrList_removeDuplicates(list, 0);
        zu_StrList_destroy(list);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void duplicatesStd(benchmark::State& state)
{
    const std::vector<Wide> strings = repeatedStrings(state.range(0));
    for ([[maybe_unused]] auto round : state) {
        const std::list<Wide> list(strings.begin(), strings.end());
        std::unordered_set<Wide> seen;
        std::list<Wide> kept;
        for (const Wide& string : list) {
            if (seen.insert(string).second)
                kept.push_back(string);
        }
        benchmark::DoNotOptimize(kept);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

constexpr std::int64_t few = 1'000;
constexpr std::int64_t many = 100'000;

BENCHMARK(fillZu)->Arg(few)->Arg(many);
BENCHMARK(fillGlib)->Arg(few)->Arg(many);
BENCHMARK_TEMPLATE(fillStd, std::list<void*>)->Arg(few)->Arg(many);
BENCHMARK_TEMPLATE(fillStd, std::vector<void*>)->Arg(few)->Arg(many);
BENCHMARK(walkZu)->Arg(few)->Arg(many);
BENCHMARK(walkGlib)->Arg(few)->Arg(many);
BENCHMARK(sortZu)->Arg(few)->Arg(many);
BENCHMARK(sortGlib)->Arg(few)->Arg(many);
BENCHMARK_TEMPLATE(sortStd, std::list<void*>)->Arg(few)->Arg(many);
BENCHMARK_TEMPLATE(sortStd, std::vector<void*>)->Arg(few)->Arg(many);
BENCHMARK(duplicatesZu)->Arg(many);
BENCHMARK(duplicatesStd)->Arg(many);

} // namespace
