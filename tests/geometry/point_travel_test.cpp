#include "geometry/geometry.h"
#include "support/memory.h"
#include "zu_PointTravelList.h"

namespace {

using namespace zutest;

TEST(PointTravelNode, theLabelIsAFormatWithoutArguments)
{
    const Wide exact(513, W('x')), longText = exact + W("yz");
    const std::tuple<const char*, WideLiteral, WideLiteral> rows[] = {
        {"doubled percent sign", W("100%% of %%d"), W("100% of %d")},
        {"conversions", W("%s %5.2lf %*d %n"), W("%s %5.2lf %*d %n")},
        {"percent sign at the end", W("100%"), W("100%")},
        {"too long", longText.c_str(), exact.c_str()},
        {"null", nullptr, W("")},
    };
    const Point p = {1, 2, 3};
    for (const auto& [what, label, stored] : rows) {
        PointTravelNode* const node = zu_PointTravelNode_create(&p, label, nullptr, -5);
        ASSERT_NE(node, nullptr) << what;
        EXPECT_EQ(str(node->label), str(stored)) << what;
        EXPECT_EQ(at(node->point), at(p)) << what;
        EXPECT_EQ(node->value, -5) << what;
        EXPECT_EQ(zu_PointTravelNode_destroy(node), 1) << what;
    }
    EXPECT_EQ(zu_PointTravelNode_create(nullptr, W("x"), nullptr, 1), nullptr);
    EXPECT_EQ(zu_PointTravelNode_destroy(nullptr), 0);
}

TEST(PointTravelList, ownsItsNodes)
{
    const int64_t before = liveBlocks();
    const Point p = {1, 2, 3};
    PointTravelList* const list = zu_PointTravelList_create();
    PointTravelNode* const first = zu_PointTravelNode_create(&p, W("a"), nullptr, 1);
    PointTravelNode* const second = zu_PointTravelNode_create(&p, W("b"), nullptr, 2);
    EXPECT_EQ(zu_PointTravelList_getCurr(list), nullptr);
    EXPECT_EQ(zu_PointTravelList_insEnd(list, first) + zu_PointTravelList_insEnd(list, second), 2);
    EXPECT_EQ(zu_PointTravelList_start(list), 1);
    EXPECT_EQ(zu_PointTravelList_getCurr(list), first);
    EXPECT_EQ(zu_PointTravelList_next(list), 1);
    EXPECT_EQ(zu_PointTravelList_getCurr(list), second);
    EXPECT_EQ(zu_PointTravelList_prev(list) + zu_PointTravelList_end(list), 2);
    EXPECT_EQ(zu_PointTravelList_eol(list), 0);
    EXPECT_EQ(zu_PointTravelList_next(list), 0);
    EXPECT_EQ(zu_PointTravelList_eol(list), 1);
    EXPECT_EQ(zu_PointTravelList_destroy(list), 1);
    EXPECT_EQ(liveBlocks(), before);
    EXPECT_EQ(zu_PointTravelList_destroy(nullptr), 0);
}

// The registry lives as long as the process and starts once: one test shows its whole course.
TEST(PointTravelList, registryOfFiftyLists)
{
    EXPECT_EQ(zu_PointTravelList_get(0), nullptr) << "nothing is registered yet";
    EXPECT_EQ(zu_PointTravelList_add(nullptr), -1);
    std::vector<PointTravelList*> lists;
    for (int32_t number = 0; number < 120; ++number) {
        lists.push_back(zu_PointTravelList_create());
        ASSERT_EQ(zu_PointTravelList_add(lists.back()), number) << "counted from 0";
        for (int32_t earlier = 0; earlier <= number; ++earlier) {
            PointTravelList* const kept = number - earlier < 50 ? lists[static_cast<std::size_t>(earlier)] : nullptr;
            ASSERT_EQ(zu_PointTravelList_get(earlier), kept) << earlier << " after " << number;
        }
    }
    EXPECT_EQ(zu_PointTravelList_get(-1), nullptr);
    for (PointTravelList* const list : lists)
        zu_PointTravelList_destroy(list);
}

} // namespace
