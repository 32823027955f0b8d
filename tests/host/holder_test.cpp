#include "frame/host_services.h"
#include "host/holder.h"
#include "support/host.h"
#include "zu_File.h"
#include "zu_Global.h"
#include "zu_Host.h"

namespace {

using namespace zutest;
using namespace zu;
using Lines = std::vector<std::string>;

// The holder that is compiled into this program, empty before and after each case.
class Holder : public testing::Test
{
protected:
    Holder() { host::destroyHolder(); }
    ~Holder() override { host::destroyHolder(); }
};

// Which of the four are there: "a", "t", "i", "f", or a dash.
std::string present()
{
    return std::string(host::application() ? "a" : "-") + (host::translator() ? "t" : "-") +
           (host::iniCache() ? "i" : "-") + (host::fileService() ? "f" : "-");
}

TEST_F(Holder, asksTheHostOnceAndInOrder)
{
    TestHost fake;
    EXPECT_EQ(present(), "atif");
    EXPECT_EQ(fake.calls(),
              (Lines{"ClassFactory.CreateInstance", "Application.Run", "Application.QueryInterface",
                     "Application.get_Translator", "Application.get_IniCache", "Application.get_FileService"}));
    EXPECT_EQ(present(), "atif");
    EXPECT_TRUE(fake.calls().empty());
    EXPECT_EQ(fake.applicationsMade, 1);
    host::destroyHolder();
    EXPECT_EQ(fake.released, (Lines{"FileService", "IniCache", "Translator", "Application"}));
    host::destroyHolder();
    EXPECT_TRUE(host::iniCache());
    EXPECT_EQ(fake.applicationsMade, 2) << "made anew";
    host::destroyHolder();
}

TEST_F(Holder, aFailedCreationIsNotTriedAgain)
{
    const int32_t before = zu_Host_setBuiltIn(0);
    EXPECT_EQ(present(), "----") << "COM is not prepared";
    zu_Host_setBuiltIn(before);
    TestHost fake;
    EXPECT_EQ(present(), "----");
    EXPECT_TRUE(fake.calls().empty()) << "not tried again";
    for (const char* step : {"ClassFactory.CreateInstance", "Application.Run", "Application.QueryInterface"}) {
        host::destroyHolder();
        fake.fail(step, E_FAIL);
        EXPECT_EQ(present(), "----") << step;
        EXPECT_EQ(fake.liveObjects, 1) << "only the class object: " << step;
        fake.fail(step, S_OK);
        EXPECT_EQ(present(), "----") << "not tried again after " << step;
        host::destroyHolder();
        EXPECT_EQ(present(), "atif") << step;
        host::destroyHolder();
    }
}

TEST_F(Holder, aFailingGetterEndsTheQuestions)
{
    const std::tuple<const char*, const char*> rows[] = {{"Application.get_Translator", "a---"},
                                                         {"Application.get_IniCache", "at--"},
                                                         {"Application.get_FileService", "ati-"}};
    for (const auto& [method, there] : rows) {
        TestHost fake;
        fake.fail(method, E_ACCESSDENIED);
        EXPECT_EQ(present(), there);
        host::destroyHolder();
    }
    TestHost fake;
    fake.hasTranslator = false;
    EXPECT_EQ(present(), "a-if") << "an absent service is no failure";
    host::destroyHolder();
}

TEST_F(Holder, aHostThatCallsBackFindsItEmpty)
{
    TestHost fake;
    std::string seen;
    fake.whenCalled = [&](const std::string& line) {
        if (line == "Application.get_IniCache")
            seen = present();
    };
    EXPECT_EQ(present(), "atif");
    EXPECT_EQ(seen, "----");
    EXPECT_EQ(fake.applicationsMade, 1);
    host::destroyHolder();

    bool ended = false;
    fake.whenCalled = [&](const std::string& line) {
        if (line == "Application.get_FileService" && !std::exchange(ended, true))
            host::destroyHolder();
    };
    EXPECT_FALSE(host::application()) << "ended while it was made";
    EXPECT_EQ(present(), "atif");
    host::destroyHolder();
}

TEST_F(Holder, theBuiltInHostStandsInWhenItIsSwitchedOn)
{
#if defined(_WIN32)
    EXPECT_EQ(zu_Host_getBuiltIn(), 0);
#else
    EXPECT_EQ(zu_Host_getBuiltIn(), 1);
#endif
    const int32_t before = zu_Host_setBuiltIn(0);
    EXPECT_EQ(present(), "----");
    EXPECT_EQ(zu_Host_setBuiltIn(7), 0);
    EXPECT_EQ(zu_Host_getBuiltIn(), 1);
    EXPECT_EQ(present(), "----") << "from the next holder on";
    host::destroyHolder();
    EXPECT_EQ(present(), "a-if");
    EXPECT_EQ(zu_Host_setBuiltIn(0), 1);
    EXPECT_EQ(present(), "a-if");
    host::destroyHolder();
    {
        TestHost fake;
        zu_Host_setBuiltIn(1);
        EXPECT_EQ(present(), "atif") << "the host's component comes first";
        EXPECT_EQ(fake.applicationsMade, 1);
        host::destroyHolder();
    }
    zu_Host_setBuiltIn(1);
    zu_Host_setBuiltIn(before);
}

// Through the library itself: what a service fails with is caught by its type outside.
TEST(HostErrors, areRaisedThroughTheExports)
{
    TestHost fake;
    fake.fail("FileService.FileExists", E_ACCESSDENIED);
    fake.description = W("not today");
    try {
        zu_File_exists(W("C:\\file"));
        FAIL() << "nothing was raised";
    } catch (const _com_error& error) {
        EXPECT_EQ(error.Error(), E_ACCESSDENIED);
        IErrorInfo* const info = error.ErrorInfo();
        ASSERT_NE(info, nullptr);
        BSTR description = nullptr;
        info->GetDescription(&description);
        info->Release();
        EXPECT_EQ(takeBstr(description), W("not today"));
    }
    EXPECT_GT(fake.liveObjects, 1);
    zu_Global_destroyData();
    EXPECT_EQ(fake.liveObjects, 1) << "only the class object";
}

} // namespace
