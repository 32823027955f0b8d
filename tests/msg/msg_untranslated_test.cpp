// Another language is configured, but the host has no translator: one message box, and texts as they are.
#include "support/configured.h"
#include "support/trace.h"
#include "zu_Msg.h"

namespace {

using namespace zutest;

TEST(MsgUntranslated, saysSoOnceAndGoesOnInEnglish)
{
    Configured world("[GENERAL]\nLANGUAGE=German\n");
    world.setEnvironment("ZU_MESSAGE_BOX", "console");
    const std::string said = printedBy(
        [] {
            EXPECT_EQ(str(zu_Msg("abc", "TOOL", 5)), W("abc\n"));
            EXPECT_EQ(str(zu_Msg("abc", "TOOL", 0)), W("abc"));
        },
        stderr);
    EXPECT_EQ(
        said,
        "Message Translator Error: Unable to create an instance of the Message Translator.\nMake sure this component "
        "(KVApplication2.dll) is installed and registered correctly.\n");
}

} // namespace
