#include "zu_Ntuple.h"

#include "geometry/geometry.h"
#include "support/memory.h"

namespace {

using namespace zutest;

struct DestroyNtuple
{
    void operator()(Ntuple* ntuple) const { zu_Ntuple_destroy(ntuple); }
};
using NtuplePtr = std::unique_ptr<Ntuple, DestroyNtuple>;

NtuplePtr ntupleOf(const std::vector<double>& values)
{
    NtuplePtr ntuple(zu_Ntuple_create(static_cast<int32_t>(values.size())));
    for (std::size_t index = 0; index < values.size(); ++index)
        EXPECT_EQ(zu_Ntuple_setElement(ntuple.get(), static_cast<int32_t>(index), values[index]), 1);
    return ntuple;
}

std::vector<double> valuesOf(const NtuplePtr& ntuple)
{
    return std::vector<double>(ntuple->elements, ntuple->elements + ntuple->count);
}

std::string printed(const Ntuple* ntuple)
{
    return written([ntuple](std::FILE* stream) { EXPECT_EQ(zu_Ntuple_print(ntuple, stream), 1); });
}

TEST(Ntuple, elementsAreBounded)
{
    const NtuplePtr ntuple(zu_Ntuple_create(3));
    ASSERT_NE(ntuple, nullptr);
    EXPECT_EQ(valuesOf(ntuple), (std::vector<double>{0, 0, 0}));
    double value = 7;
    EXPECT_EQ(zu_Ntuple_setElement(ntuple.get(), 2, 5.5), 1);
    EXPECT_EQ(zu_Ntuple_getElement(&value, ntuple.get(), 2), 1);
    EXPECT_EQ(value, 5.5);
    for (const int32_t index : {3, INT32_MAX, -1, INT32_MIN}) {
        EXPECT_EQ(zu_Ntuple_setElement(ntuple.get(), index, 1), 0) << index;
        EXPECT_EQ(zu_Ntuple_getElement(&value, ntuple.get(), index), 0) << index;
    }
    EXPECT_EQ(value, 5.5);
    for (const int32_t size : {-1, INT32_MIN})
        EXPECT_EQ(zu_Ntuple_create(size), nullptr);
    const NtuplePtr none = ntupleOf({});
    EXPECT_EQ(zu_Ntuple_dotProduct(&value, none.get(), none.get()), 1);
    EXPECT_EQ(value, 0);
}

TEST(Ntuple, arithmetic)
{
    const NtuplePtr a = ntupleOf({1, 2, 3}), b = ntupleOf({4, 6, 8}), out = ntupleOf({0, 0, 0}), two = ntupleOf({1, 1});
    double product = 7;
    EXPECT_EQ(zu_Ntuple_add(out.get(), a.get(), b.get()), 1);
    EXPECT_EQ(valuesOf(out), (std::vector<double>{5, 8, 11}));
    EXPECT_EQ(zu_Ntuple_subtract(out.get(), a.get(), b.get()), 1);
    EXPECT_EQ(valuesOf(out), (std::vector<double>{-3, -4, -5})) << "the first minus the second";
    EXPECT_EQ(zu_Ntuple_dotProduct(&product, a.get(), b.get()), 1);
    EXPECT_EQ(product, 40);
    EXPECT_EQ(zu_Ntuple_scale(out.get(), -2), 1);
    EXPECT_EQ(valuesOf(out), (std::vector<double>{6, 8, 10}));

    const std::vector<double> before = valuesOf(out);
    product = 7;
    EXPECT_EQ(zu_Ntuple_dotProduct(&product, a.get(), two.get()) + zu_Ntuple_copy(out.get(), two.get()), 0);
    EXPECT_EQ(zu_Ntuple_add(two.get(), a.get(), b.get()) + zu_Ntuple_subtract(out.get(), a.get(), two.get()), 0);
    EXPECT_EQ(product, 7);
    EXPECT_EQ(valuesOf(out), before);

    // Summed in index order: any other order loses the small parts elsewhere.
    const NtuplePtr mixed = ntupleOf({1e16, 1, -1e16, 1}), ones = ntupleOf({1, 1, 1, 1});
    EXPECT_EQ(zu_Ntuple_dotProduct(&product, mixed.get(), ones.get()), 1);
    EXPECT_EQ(product, ((1e16 + 1) - 1e16) + 1);
    const Vector vector = {7, 8, 9};
    EXPECT_EQ(valuesOf(NtuplePtr(zu_Ntuple_fromVector(&vector))), (std::vector<double>{7, 8, 9}));
}

TEST(Ntuple, print)
{
    EXPECT_EQ(printed(ntupleOf({1, 2}).get()), "1.000000, 2.000000\n");
    const Ntuple unreadable = {3, nullptr};
    EXPECT_EQ(printed(&unreadable), " ,  ,   \n");
    EXPECT_EQ(printed(ntupleOf({1.7976931348623157e308}).get()).size(), 309u + 7 + 1);
    EXPECT_EQ(printedBy([] { zu_Ntuple_print(ntupleOf({0.5}).get(), nullptr); }), "0.500000\n");
}

TEST(Ntuple, withoutMemory)
{
    const Vector vector = {1, 2, 3};
    Ntuple* fromVector = nullptr;
    {
        // Where the elements are missing the header is there, and refuses everything.
        const AllocationLimit limit(1);
        const NtuplePtr hollow(zu_Ntuple_create(2));
        ASSERT_NE(hollow, nullptr);
        EXPECT_EQ(zu_Ntuple_setElement(hollow.get(), 0, 1), 0);
        EXPECT_EQ(zu_Ntuple_create(2), nullptr);
    }
    sweepAllocations([&] { fromVector = zu_Ntuple_fromVector(&vector); }, [&] { EXPECT_EQ(fromVector, nullptr); });
    EXPECT_EQ(zu_Ntuple_destroy(fromVector), 1);
}

} // namespace
