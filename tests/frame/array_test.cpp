#include "support/memory.h"
#include "support/wide.h"
#include "zu_Array.h"

#include <cstring>

namespace {

using namespace zutest;

int32_t destroyed = 0;
int32_t countDestroyed(void*)
{
    return ++destroyed;
}

int32_t isEqual(const void* element, const void* key)
{
    return std::memcmp(element, key, sizeof(int64_t));
}

TEST(Array, elementsAreAddressedByBytes)
{
    const int64_t initial = 7;
    Array* const array = zu_Array_create(4, sizeof initial, &initial);
    ASSERT_NE(array, nullptr);
    const int64_t values[] = {10, 11, 12, 13};
    for (uint64_t index = 0; index < 4; ++index) {
        EXPECT_EQ(*static_cast<int64_t*>(zu_Array_getNth(array, index)), 7);
        EXPECT_EQ(zu_Array_setNth(array, index, &values[index], countDestroyed), 0);
    }
    EXPECT_EQ(std::exchange(destroyed, 0), 4);
    EXPECT_EQ(zu_Array_getNth(array, 4), nullptr);
    EXPECT_EQ(zu_Array_swap(array, 0, 3), 1);
    EXPECT_EQ(*static_cast<int64_t*>(zu_Array_getNth(array, 0)), 13);
    EXPECT_EQ(zu_Array_swap(array, 0, 4), 0);
    EXPECT_EQ(zu_Array_search(array, &values[2], isEqual), 2u);
    EXPECT_EQ(zu_Array_search(array, &values[3], isEqual), 0u) << "found at index 0";
    EXPECT_EQ(zu_Array_search(array, &initial, isEqual), 0u) << "not found";
    EXPECT_EQ(zu_Array_destroy(array, countDestroyed), 1);
    EXPECT_EQ(std::exchange(destroyed, 0), 4);
}

TEST(Array, theElementSizeBoundsTheAddresses)
{
    const uint16_t initial = 0x1234;
    Array* const array = zu_Array_create(5, sizeof initial, &initial);
    ASSERT_NE(array, nullptr);
    EXPECT_EQ(*static_cast<uint16_t*>(zu_Array_getNth(array, 1)), 0x1234);
    EXPECT_EQ(zu_Array_getNth(array, 2), nullptr);
    EXPECT_EQ(zu_Array_destroy(array, countDestroyed), 1);
    EXPECT_EQ(std::exchange(destroyed, 0), 2);

    // Fewer elements than bytes each: addresses are handed out beyond the storage, but nothing is stored there.
    const int64_t wide = 1;
    Array* const shortArray = zu_Array_create(1, sizeof wide, &wide);
    EXPECT_NE(zu_Array_getAddress(shortArray, 5), nullptr);
    EXPECT_EQ(zu_Array_setNth(shortArray, 5, &wide, countDestroyed), 0);
    EXPECT_EQ(destroyed, 0);
    zu_Array_destroy(shortArray, nullptr);
}

TEST(Array, badInput)
{
    const int32_t value = 1;
    EXPECT_EQ(zu_Array_create(0, 4, &value), nullptr);
    Array* const tooLarge = zu_Array_create(UINT64_MAX / 2, 16, &value);
    ASSERT_NE(tooLarge, nullptr);
    EXPECT_EQ(zu_Array_size(tooLarge), 0u);
    EXPECT_EQ(zu_Array_destroy(tooLarge, countDestroyed), 1);
    EXPECT_EQ(destroyed, 0);
    EXPECT_EQ(zu_Array_size(nullptr), 0u);
    EXPECT_EQ(zu_Array_getNth(nullptr, 0), nullptr);
    EXPECT_TRUE(allAre(0, {zu_Array_destroy(nullptr, countDestroyed), zu_Array_setNth(nullptr, 0, &value, nullptr),
                           zu_Array_swap(nullptr, 0, 0)}));

    sweepAllocations(
        [&] {
            Array* const array = zu_Array_create(2, 4, &value);
            zu_Array_swap(array, 0, 1);
            zu_Array_destroy(array, nullptr);
        },
        [] {});
}

} // namespace
