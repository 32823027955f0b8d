#include "support/sandbox.h"
#include "support/trace.h"
#include "zu_Diag.h"
#include "zu_LnkList.h"

namespace {

using namespace zutest;

class Diag : public testing::Test
{
protected:
    ~Diag() override
    {
        zu_Diag_disable();
        zu_Diag_setOutput(ZU_DIAG_TO_CONSOLE, nullptr);
        zu_Diag_setFileName(nullptr);
    }
    Sandbox sandbox;
};

TEST_F(Diag, levelAndMaskAnswerWithWhatWasThere)
{
    EXPECT_EQ(zu_Diag_setLevel(2), 0);
    EXPECT_EQ(zu_Diag_setLevel(-1), 2);
    EXPECT_EQ(zu_Diag_getLevel(), 2);
    EXPECT_EQ(zu_Diag_setCondition(0xFFFFFFFF), 0u);
    EXPECT_EQ(zu_Diag_disable(), 0xFFFFFFFF);
    ZU_DiagCurrentLevel = 3; // hosts write the state directly
    EXPECT_EQ(zu_Diag_getLevel(), 3);
    ZU_DiagCurrentCondition = 0x24;
    EXPECT_EQ(zu_Diag_getCondition(), 0x24u);
    ZU_DiagCurrentOutput = ZU_DIAG_TO_NOTHING;
    EXPECT_EQ(zu_Diag_getDiagOutput(), ZU_DIAG_TO_NOTHING);
    zu_Diag_setFileName(W("name"));
    EXPECT_EQ(str(ZU_DiagCurrentFileName), W("name"));
    EXPECT_EQ(zu_Diag_getDiagMsgBuf(), ZU_DiagMsgBuf);
    EXPECT_EQ(zu_Diag_setOutputStream(stdin), stdin);
    EXPECT_EQ(zu_Diag_getOutputStream(), ZU_DiagOutputStream);
}

TEST_F(Diag, destinations)
{
    WideBuffer<600> name;
    EXPECT_EQ(zu_Diag_setOutput(7, nullptr), 0);
    EXPECT_EQ(zu_Diag_getOutput(name), 1);
    EXPECT_EQ(name.str(), W(""));

    sandbox.write(W("Log.txt"), "old");
    EXPECT_EQ(zu_Diag_setOutput(ZU_DIAG_TO_FILE, sandbox.path(W("Log.txt")).c_str()), 1);
    EXPECT_EQ(sandbox.read(W("Log.txt")), "") << "truncated by the check";
    EXPECT_EQ(zu_Diag_getOutput(name), 2);
    EXPECT_EQ(name.str(), sandbox.path(W("Log.txt")));
    EXPECT_EQ(zu_Diag_setOutput(ZU_DIAG_TO_CONSOLE_AND_FILE, sandbox.path(W("no\\such\\directory")).c_str()), 0);
    EXPECT_EQ(zu_Diag_getDiagOutput(), ZU_DIAG_TO_CONSOLE);
    EXPECT_EQ(zu_Diag_setDiagOutput(99), 99) << "unchecked";
    EXPECT_EQ(zu_Diag_getDiagOutput(), 99);
}

TEST_F(Diag, noNameFallsBackToTheDefaultAndSaysSo)
{
    std::filesystem::current_path(sandbox.native());
    EXPECT_EQ(printedBy([] { EXPECT_EQ(zu_Diag_setOutput(ZU_DIAG_TO_FILE, W("")), 1); }),
              "zu_Diag_setOutput: Diagnostics log file name specified is invalid.\nDefaulting to log file: "
              "ZU_DIAG.LOG\n");
    EXPECT_TRUE(sandbox.exists(W("ZU_DIAG.LOG")));
    // The name that is held may be given again.
    zu_Diag_setFileName(sandbox.path(W("held")).c_str());
    EXPECT_EQ(zu_Diag_setOutput(ZU_DIAG_TO_FILE, zu_Diag_getFileName()), 1);
    EXPECT_EQ(str(zu_Diag_getFileName()), sandbox.path(W("held")));
}

TEST_F(Diag, aLineNamesTheSourceInLowerCaseWithoutItsDirectory)
{
    zu_Diag_setOutput(ZU_DIAG_TO_FILE, sandbox.path(W("log")).c_str());
    zu_Diag_putOutputMsg(W("text \u00e4\u0416"), W("D:\\Src\\LNKLIST.C"), 251);
    zu_Diag_putOutputMsg(W(""), W("X"), 1);
    zu_Diag_putOutputMsg(nullptr, W("X"), 1);
    zu_Diag_putOutput(4, W("ignored"), nullptr, 2);
    std::string log = sandbox.read(W("log"));
    std::erase(log, '\r');
    EXPECT_EQ(log, "lnklist.c (251) text \xC3\xA4\xD0\x96\n (2) text \xC3\xA4\xD0\x96\n");
}

TEST_F(Diag, aMessageTooLongIsReportedTwiceWhenTracing)
{
    zu_Diag_setOutput(ZU_DIAG_TO_FILE, sandbox.path(W("log")).c_str());
    const Wide longText(5000, W('x'));
    zu_Diag_putOutputMsg(longText.c_str(), W("A"), 9);
    EXPECT_EQ(Wide(zu_Diag_getDiagMsgBuf()), longText.substr(0, ZU_DIAG_MSG_SIZE)) << "cut to the buffer";
    zu_Diag_setOutput(ZU_DIAG_TO_FILE, sandbox.path(W("log")).c_str());
    zu_Diag_setLevel(3);
    zu_Diag_setCondition(0x80000000);
    zu_Diag_putOutputMsg(longText.c_str(), W("A"), 9);
    std::string log = sandbox.read(W("log"));
    std::erase(log, '\r');
    const std::string warning = "Buffer size 5000 too big for diagnostics in a at 9\n\n";
    EXPECT_EQ(log, "diag (571) " + warning + "a (9) " + warning);
}

// Level and mask are read again at the exit.
int32_t switchTracing(void*)
{
    zu_Diag_setLevel(zu_Diag_getLevel() == 3 ? 0 : 3);
    return 0;
}

TEST(DiagFrame, aChangeInsideShowsAtTheExit)
{
    int datum = 0;
    TraceCapture trace(ZU_DIAG_LNKLIST);
    LnkList* list = zu_LnkList_create(&datum, nullptr);
    trace.lines();
    zu_LnkList_delAll(list, switchTracing);
    EXPECT_EQ(trace.lines(), std::vector<std::string>{"lnklist Entering zu_LnkList_delAll."});
    zu_LnkList_destroy(list, nullptr);
}

} // namespace
