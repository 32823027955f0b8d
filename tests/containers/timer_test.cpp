#include "support/memory.h"
#include "support/wide.h"
#include "zu_LnkList.h"
#include "zu_Timer.h"

#include <chrono>
#include <thread>

namespace {

using namespace zutest;

class Timer : public testing::Test
{
protected:
    ~Timer() override { zu_Timer_clearAll(); }
};

// Several ticks of the coarsest clock, which has 16 milliseconds.
void pause()
{
    std::this_thread::sleep_for(std::chrono::milliseconds(60));
}

TEST_F(Timer, measuresSeconds)
{
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(zu_Timer_create(W("t")), 1);
    pause();
    const double first = zu_Timer_check(W("t"));
    EXPECT_GE(first, 0.02);
    EXPECT_GE(zu_Timer_check(W("t")), first) << "keeps running";
    EXPECT_GE(zu_Timer_reset(W("t")), first);
    const double sinceReset = zu_Timer_check(W("t"));
    pause();
    const double last = zu_Timer_delete(W("t"));
    EXPECT_GE(last, 0.02);
    const std::chrono::duration<double> whole = std::chrono::steady_clock::now() - start;
    EXPECT_LE(first + last, whole.count() + 0.035) << "milliseconds as seconds, and from the reset on";
    EXPECT_LE(sinceReset, last);
    EXPECT_EQ(zu_Timer_delete(W("t")), 0.0);
}

TEST_F(Timer, unknownNames)
{
    EXPECT_EQ(zu_Timer_check(W("t")), 0.0);
    pause();
    EXPECT_EQ(zu_Timer_check(W("t")), 0.0) << "created nothing";
    EXPECT_EQ(zu_Timer_reset(W("t")), 0.0);
    pause();
    EXPECT_GT(zu_Timer_check(W("t")), 0.0) << "created by the reset";
    EXPECT_EQ(zu_Timer_check(W("T")), 0.0) << "case counts";
    EXPECT_EQ(zu_Timer_create(nullptr), 0);
    EXPECT_EQ(zu_Timer_reset(nullptr) + zu_Timer_check(nullptr) + zu_Timer_delete(nullptr), 0.0);
    EXPECT_EQ(zu_Timer_clearAll(), 1);
    EXPECT_EQ(zu_Timer_check(W("t")), 0.0);
    EXPECT_EQ(zu_Timer_clearAll(), 1);
}

TEST_F(Timer, theFieldWraps)
{
    // The timer's element of the registry is what its creation obtains last.
    ASSERT_EQ(zu_Timer_create(W("t")), 1);
    auto* const timer = static_cast<TimerNode*>(static_cast<LnkNode*>(lastBlock())->data);
    ASSERT_EQ(str(timer->name), W("t"));
    const auto now = static_cast<uint32_t>(timer->startTicks);
    for (const uint32_t elapsed : {now + 1000, uint32_t{0x7FFFFFFF}, uint32_t{0xF0000000}}) {
        timer->startTicks = static_cast<int32_t>(now - elapsed);
        EXPECT_NEAR(zu_Timer_check(W("t")), elapsed / 1000.0, 60.0) << elapsed;
    }
}

TEST_F(Timer, longNamesAreCutAndFound)
{
    const Wide longName = Wide(51, W('n')) + W("tail");
    zu_Timer_create(longName.c_str());
    pause();
    EXPECT_GT(zu_Timer_check(longName.c_str()), 0.0);
    EXPECT_GT(zu_Timer_check(longName.substr(0, 51).c_str()), 0.0);
    EXPECT_EQ(zu_Timer_check(longName.substr(0, 50).c_str()), 0.0);
    TimerNode* const node = zu_TimerNode_create(longName.c_str());
    EXPECT_EQ(Wide(node->name), longName.substr(0, 51));
    EXPECT_EQ(zu_TimerNode_compare(node, longName.c_str()), 0);
    EXPECT_GT(zu_TimerNode_compare(node, W("N")), 0);
    EXPECT_LT(zu_TimerNode_compare(node, W("o")), 0);
    EXPECT_TRUE(allAre(-1, {zu_TimerNode_compare(node, nullptr), zu_TimerNode_compare(nullptr, W("n"))}));
    zu_TimerNode_delete(node);
}

} // namespace
