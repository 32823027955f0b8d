#include "geometry/geometry.h"
#include "support/memory.h"
#include "zu_PointList.h"
#include "zu_VectorList.h"

namespace {

using namespace zutest;

template <bool isFirst, class First, class Second>
constexpr auto pick(First first, Second second)
{
    if constexpr (isFirst)
        return first;
    else
        return second;
}

// The operations of either family under common names, so that every case runs for both.
template <bool ofPoints>
struct Lists
{
    using Value = std::conditional_t<ofPoints, Point, Vector>;
    static constexpr auto create = pick<ofPoints>(zu_PointList_create, zu_VectorList_create);
    static constexpr auto destroy = pick<ofPoints>(zu_PointList_destroy, zu_VectorList_destroy);
    static constexpr auto copy = pick<ofPoints>(zu_PointList_copy, zu_VectorList_copy);
    static constexpr auto insStart = pick<ofPoints>(zu_PointList_insStart, zu_VectorList_insStart);
    static constexpr auto insEnd = pick<ofPoints>(zu_PointList_insEnd, zu_VectorList_insEnd);
    static constexpr auto insBefore = pick<ofPoints>(zu_PointList_insBefore, zu_VectorList_insBefore);
    static constexpr auto insAfter = pick<ofPoints>(zu_PointList_insAfter, zu_VectorList_insAfter);
    static constexpr auto insNth = pick<ofPoints>(zu_PointList_insNth, zu_VectorList_insNth);
    static constexpr auto delCurr = pick<ofPoints>(zu_PointList_delCurr, zu_VectorList_delCurr);
    static constexpr auto delNth = pick<ofPoints>(zu_PointList_delNth, zu_VectorList_delNth);
    static constexpr auto delAll = pick<ofPoints>(zu_PointList_delAll, zu_VectorList_delAll);
    static constexpr auto getCurr = pick<ofPoints>(zu_PointList_getCurr, zu_VectorList_getCurr);
    static constexpr auto getCurrCopy = pick<ofPoints>(zu_PointList_getCurrCopy, zu_VectorList_getCurrCopy);
    static constexpr auto getNth = pick<ofPoints>(zu_PointList_getNth, zu_VectorList_getNth);
    static constexpr auto modCurr = pick<ofPoints>(zu_PointList_modCurr, zu_VectorList_modCurr);
    static constexpr auto modNth = pick<ofPoints>(zu_PointList_modNth, zu_VectorList_modNth);
    static constexpr auto start = pick<ofPoints>(zu_PointList_start, zu_VectorList_start);
    static constexpr auto end = pick<ofPoints>(zu_PointList_end, zu_VectorList_end);
    static constexpr auto next = pick<ofPoints>(zu_PointList_next, zu_VectorList_next);
    static constexpr auto prev = pick<ofPoints>(zu_PointList_prev, zu_VectorList_prev);
    static constexpr auto skip = pick<ofPoints>(zu_PointList_skip, zu_VectorList_skip);
    static constexpr auto eol = pick<ofPoints>(zu_PointList_eol, zu_VectorList_eol);
    static constexpr auto length = pick<ofPoints>(zu_PointList_length, zu_VectorList_length);
    static constexpr auto closest = pick<ofPoints>(zu_PointList_getClosestPoint, zu_VectorList_getClosestVector);
};

template <class Family>
class ValueLists : public testing::Test
{
protected:
    using Value = typename Family::Value;
    ~ValueLists() override { Family::destroy(list); }

    // One number stands for a value here.
    static Value value(double x) { return {x, -x, 2 * x}; }
    void append(double x)
    {
        const Value element = value(x);
        EXPECT_EQ(Family::insEnd(list, &element), 1);
    }
    std::vector<double> content() const
    {
        std::vector<double> values;
        for (const LnkNode* node = list->first; node != nullptr; node = node->next)
            values.push_back(static_cast<const Value*>(node->data)->x);
        return values;
    }

    LnkList* list = Family::create(nullptr);
};
using Families = testing::Types<Lists<true>, Lists<false>>;
TYPED_TEST_SUITE(ValueLists, Families);

TYPED_TEST(ValueLists, insertionsCopy)
{
    auto one = this->value(1), two = this->value(2);
    EXPECT_EQ(TypeParam::insStart(this->list, &one), 1);
    one.x = 9;
    EXPECT_EQ(TypeParam::insEnd(this->list, &two), 1);
    EXPECT_EQ(this->content(), (std::vector<double>{1, 2}));
    EXPECT_EQ(TypeParam::eol(this->list), 1) << "no current yet";
    TypeParam::end(this->list);
    const auto three = this->value(3), four = this->value(4), five = this->value(5), six = this->value(6);
    EXPECT_EQ(TypeParam::insBefore(this->list, &three), 1);
    EXPECT_EQ(TypeParam::insAfter(this->list, &four), 1);
    EXPECT_EQ(TypeParam::getCurr(this->list)->x, 2);
    EXPECT_EQ(TypeParam::insNth(this->list, 1, &five), 1);
    EXPECT_EQ(TypeParam::insNth(this->list, 9, &six), 1) << "past the end";
    EXPECT_EQ(this->content(), (std::vector<double>{1, 5, 3, 2, 4, 6}));
    EXPECT_EQ(TypeParam::length(this->list), 6u);

    LnkList* const made = TypeParam::create(&two, &three, static_cast<void*>(nullptr));
    EXPECT_EQ(TypeParam::length(made), 2u);
    EXPECT_EQ(at(*TypeParam::getCurr(made)), at(two)) << "at the start";
    EXPECT_EQ(TypeParam::next(made) + TypeParam::prev(made) + TypeParam::start(made), 3);
    EXPECT_EQ(TypeParam::skip(made, 2), 0);
    EXPECT_EQ(TypeParam::destroy(made), 1);
}

TYPED_TEST(ValueLists, readingAndReplacing)
{
    EXPECT_EQ(TypeParam::getCurrCopy(this->list), nullptr);
    for (const double x : {1.0, 2.0, 3.0})
        this->append(x);
    EXPECT_EQ(TypeParam::getNth(this->list, 1)->x, 2);
    auto* const copy = TypeParam::getCurrCopy(this->list);
    ASSERT_NE(copy, nullptr);
    copy->x = 50;
    EXPECT_EQ(this->content(), (std::vector<double>{1, 2, 3})) << "a copy";
    TypeParam::getCurr(this->list)->x = 20;
    EXPECT_EQ(this->content(), (std::vector<double>{1, 20, 3})) << "the element itself";
    EXPECT_EQ(TypeParam::getCurrCopy(this->list), copy) << "one buffer";
    EXPECT_EQ(copy->x, 20);

    const int64_t before = liveBlocks();
    EXPECT_EQ(TypeParam::modCurr(this->list, TypeParam::getCurr(this->list)), 1) << "by itself";
    const auto seven = this->value(7);
    EXPECT_EQ(TypeParam::modNth(this->list, 2, &seven), 1);
    EXPECT_EQ(TypeParam::modNth(this->list, 3, &seven), 0);
    EXPECT_EQ(TypeParam::modCurr(this->list, &seven), 0) << "no current element";
    EXPECT_EQ(liveBlocks(), before);
    EXPECT_EQ(this->content(), (std::vector<double>{1, 20, 7}));

    EXPECT_EQ(TypeParam::delNth(this->list, 0) + TypeParam::delCurr(this->list), 2);
    EXPECT_EQ(this->content(), (std::vector<double>{7}));
    EXPECT_EQ(TypeParam::delAll(this->list), 1);
    EXPECT_EQ(liveBlocks(), before - 6);
}

TYPED_TEST(ValueLists, copySkipsElementsWithoutData)
{
    this->append(1);
    zu_LnkList_insEnd(this->list, nullptr);
    this->append(2);
    TypeParam::end(this->list);
    LnkList* const copy = TypeParam::copy(this->list);
    EXPECT_EQ(TypeParam::length(copy), 2u);
    EXPECT_EQ(TypeParam::getCurr(copy)->x, 1);
    EXPECT_EQ(TypeParam::getNth(copy, 1)->x, 2);
    EXPECT_NE(TypeParam::getNth(copy, 1), TypeParam::getNth(this->list, 2));
    EXPECT_EQ(TypeParam::getCurr(this->list)->x, 2) << "its cursor stays";
    TypeParam::destroy(copy);
}

TYPED_TEST(ValueLists, closestIsTheFirstOfTheNearest)
{
    typename TypeParam::Value out = {9, 9, 9}, p = {0, 0, 0};
    EXPECT_EQ(TypeParam::closest(&out, &p, this->list), -1);
    EXPECT_EQ(out.x, 9);
    EXPECT_EQ(TypeParam::closest(&out, nullptr, this->list), -1);
    zu_LnkList_insEnd(this->list, nullptr);
    for (const double x : {5.0, -2.0, 2.0, -3.0})
        this->append(x);
    EXPECT_EQ(TypeParam::closest(&out, &p, this->list), 2) << "elements without data are counted";

    // Against distances computed one by one. Coordinates on a coarse grid give many at the same distance.
    Numbers numbers(82);
    for (int round = 0; round < 200; ++round) {
        TypeParam::delAll(this->list);
        p = {double(numbers.nextInt(-2, 2)), double(numbers.nextInt(-2, 2)), 1e-9 * numbers.next()};
        int best = -1;
        double bestDistance = infinity;
        for (int index = 0; index < 30; ++index) {
            const typename TypeParam::Value element = {double(numbers.nextInt(-2, 2)), double(numbers.nextInt(-2, 2)),
                                                       1e-9 * numbers.next()};
            TypeParam::insEnd(this->list, &element);
            const double x = element.x - p.x, y = element.y - p.y, z = element.z - p.z;
            const double distance = std::sqrt(x * x + y * y + z * z);
            if (distance < bestDistance) {
                bestDistance = distance;
                best = index;
            }
        }
        EXPECT_EQ(TypeParam::closest(&p, &p, this->list), best) << round << ": out may be what is looked for";
        EXPECT_EQ(at(p), at(*TypeParam::getNth(this->list, best))) << round;
    }
}

TYPED_TEST(ValueLists, withoutMemory)
{
    const auto one = this->value(1), two = this->value(2);
    LnkList* made = nullptr;
    sweepAllocations([&] { made = TypeParam::create(&one, &two, static_cast<void*>(nullptr)); },
                     [&] { EXPECT_EQ(made, nullptr); });
    int32_t result = -1;
    const auto check = [&] {
        EXPECT_EQ(result, 0);
        EXPECT_EQ(TypeParam::length(made), 2u);
        EXPECT_EQ(TypeParam::getCurr(made)->x, 1);
    };
    sweepAllocations([&] { result = TypeParam::modCurr(made, &one); }, check);
    EXPECT_EQ(result, 1);
    TypeParam::destroy(made);
}

TEST(PointList, searchFindsTheLast)
{
    const Point a = {1, 2, 3}, b = {4, 5, 6}, nearA = {1.05, 2, 3}, other = {7, 7, 7};
    PointList* const list = zu_PointList_create(&a, &b, &nearA, &b, static_cast<void*>(nullptr));
    zu_LnkList_insStart(list, nullptr);
    EXPECT_EQ(zu_PointList_search(list, &b, 1e-5), 4);
    EXPECT_EQ(zu_PointList_search(list, &a, 1e-5), 1);
    EXPECT_EQ(zu_PointList_eol(list), 1) << "the whole list was read";
    EXPECT_EQ(zu_PointList_search(list, &a, 0.1), 3);
    EXPECT_EQ(zu_PointList_search(list, &other, 1), -1);
    EXPECT_EQ(zu_PointList_search(nullptr, &a, 1), -1);
    zu_PointList_destroy(list);
}

} // namespace
