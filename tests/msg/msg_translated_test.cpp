// Messages in another language: the host's translator is asked for each.
#include "support/host.h"
#include "support/memory.h"
#include "zu_Msg.h"

namespace {

using namespace zutest;

const zu_wchar* const end = nullptr;

// A host that is configured for debugging the texts: English, and the translator is asked all the same.
class MsgTranslated : public testing::Test
{
protected:
    MsgTranslated()
    {
        host.configurationDirectory = W("C:\\cfg");
        set(W("LANGUAGE"), W("ENG"));
        set(W("LANGUAGE_DEBUG"), W("1"));
        zu_Msg("", "", 0); // the decision, in whichever test comes first
        host.calls();
    }
    void set(const zu_wchar* key, const zu_wchar* value)
    {
        host.iniValue(W("C:\\cfg\\zu.ini"), W("GENERAL"), key) = value;
    }
    TestHost host;
};

TEST_F(MsgTranslated, asksForTheEntryBeforeTheNumber)
{
    host.translations[W("abc|TOOL|4")] = W("\u00e4\u0416 %s");
    host.translations[W("abc|TOOL|0")] = W("entry zero");
    EXPECT_EQ(str(zu_Msg("abc", "TOOL", 5)), W("\u00e4\u0416 %s")) << "as it comes, without layout";
    EXPECT_EQ(host.calls(), std::vector<std::string>{"Translator.Translate abc TOOL 4"});
    EXPECT_EQ(str(zu_Msg("abc", "TOOL", 0)), W("entry zero"));
    EXPECT_EQ(str(zu_Msg("unknown\\n", "TOOL", 2)), W("unknown\n ")) << "an empty answer is laid out locally";
    host.translations[W("Size|DBCols|2")] = W("Gr\u00f6\u00dfe");
    EXPECT_EQ(str(zu_MsgDBCols(W("Size"), 3)), W("Gr\u00f6\u00dfe"));
    host.translations[W("long|S|0")] = Wide(400, W('x'));
    EXPECT_EQ(str(zu_Msg("long", "S", 0)), Wide(255, W('x')));
    host.translations[W("pad|S|0")] = W("xy");
    EXPECT_EQ(str(zu_Msg_pad(W("pad"), W("S"), 1, 4)), W("xy  "));
}

TEST_F(MsgTranslated, aFailingTranslatorIsRaisedAndNothingLeaks)
{
    host.fail("Translator.Translate", E_ACCESSDENIED);
    const std::int64_t before = liveBlocks();
    EXPECT_EQ(raisedBy([] { zu_Msg("abc", "TOOL", 5); }), E_ACCESSDENIED);
    EXPECT_EQ(raisedBy([] { zu_Msg_mlt(W("k"), W("a"), W("S"), 5, end); }), E_ACCESSDENIED);
    EXPECT_EQ(liveBlocks(), before);
    host.fail("Translator.Translate", S_OK);
    host.hasTranslator = false;
    EXPECT_EQ(str(zu_Msg("abc", "TOOL", 5)), W("abc\n")) << "kept by the holder";
}

TEST_F(MsgTranslated, manyAtOnce)
{
    host.translations[W("a|S|4")] = W("A");
    host.translations[W("b|S|4")] = W("^ignore");
    MsgList* const list =
        zu_Msg_mlt(W("k1"), W("a"), W("S"), 5, W("k2"), W("b"), W("S"), 5, W("k3"), W("c"), W(""), 5, end);
    EXPECT_EQ(str(zu_Msg_find(list, W("k1"))), W("A"));
    EXPECT_EQ(str(zu_Msg_find(list, W("k2"))), W("b")) << "a caret leaves the text alone";
    EXPECT_EQ(str(zu_Msg_find(list, W("k3"))), W("c")) << "without a section it is not translated";
    zu_MsgList_destroy(list);
    EXPECT_EQ(host.calls().size(), 2u);
}

TEST_F(MsgTranslated, keywordLists)
{
    host.translations[W("Open,Close|KEYS|0")] = W("\u00d6ffnen, Schlie\u00dfen");
    MsgKeyWordList* list = zu_Msg_getKeyWordList(W("Open,Close"), W("KEYS"), 9);
    EXPECT_EQ(str(zu_MsgKeyWordList_find(list, W("CLOSE"))), W("Schlie\u00dfen"));
    zu_MsgKeyWordList_destroy(list);

    host.translations[W("A,B|KEYS|0")] = W("A B");
    list = zu_Msg_getKeyWordList(W("A,B"), W("KEYS"), 0);
    EXPECT_EQ(zu_LnkList_length(list), 0u) << "several keywords came back as one";
    EXPECT_NE(list, nullptr);
    zu_MsgKeyWordList_destroy(list);

    host.translations[W("A,B,C|KEYS|0")] = W("x,y");
    list = zu_Msg_getKeyWordList(W("A,B,C"), W("KEYS"), 0);
    EXPECT_EQ(zu_LnkList_length(list), 2u) << "only what both have";
    zu_MsgKeyWordList_destroy(list);
}

TEST_F(MsgTranslated, aLanguageMayHaveASeparatorOfItsOwn)
{
    set(W("LANGUAGE"), W("French"));
    set(W("KV"), W("C:\\net"));
    host.translations[W(",|SEP|0")] = W(";");
    host.translations[W("A,B|KEYS|0")] = W("un, deux;trois");
    MsgKeyWordList* list = zu_Msg_getKeyWordList(W("A,B"), W("KEYS"), 0);
    EXPECT_EQ(str(zu_MsgKeyWordList_find(list, W("B"))), W("deux;trois")) << "the file that says so is not there";
    zu_MsgKeyWordList_destroy(list);
    host.files.push_back(W("c:\\net\\language\\sep_french.dbf"));
    list = zu_Msg_getKeyWordList(W("A,B"), W("KEYS"), 0);
    EXPECT_EQ(str(zu_MsgKeyWordList_find(list, W("B"))), W("trois"));
    zu_MsgKeyWordList_destroy(list);
}

} // namespace
