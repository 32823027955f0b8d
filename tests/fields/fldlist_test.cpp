#include "support/lists.h"
#include "support/memory.h"
#include "support/wide.h"
#include "zu_FldList.h"
#include "zu_StrList.h"

namespace {

using namespace zutest;

using Owner = Fields;
constexpr const zu_wchar* end = nullptr;
constexpr double xyz[3] = {1.5, -2.5, 3.5};

// One field of every type, named by its code.
Owner everyType()
{
    Owner list(zu_FldList_create(W("C"), ZU_FLD_CHAR, W("12.75 mm"), W("H"), ZU_FLD_HANDLE, W("1aF"), W("I"),
                                 ZU_FLD_INT, 42, W("L"), ZU_FLD_LONG, -43, W("N"), ZU_FLD_REAL, -2.7, W("P"),
                                 ZU_FLD_POINT, 1.0, 2.0, 3.0, W("M"), ZU_FLD_MPOINT, 4.0, 5.0, 6.0, W("D"),
                                 ZU_FLD_DPOINT, 7.0, 8.0, 9.0, W("O"), ZU_FLD_VECTOR, 0.5, 0.25, 0.125, W("U"),
                                 ZU_FLD_UNKNOWN, nullptr, end));
    zu_FldList_appList(list.get(), W("V"), zu_FldList_create(W("inner"), ZU_FLD_INT, 1, end));
    zu_FldList_appStrList(list.get(), W("S"), zu_StrList_create(W("x"), W("y"), end));
    return list;
}

std::string typesOf(FldList* list)
{
    std::string types;
    for (const LnkNode* node = list->first; node != nullptr; node = node->next)
        types += static_cast<char>(static_cast<const FldNode*>(node->data)->type);
    return types;
}

TEST(FldList, theBuilderMakesEveryType)
{
    const Owner list = everyType();
    EXPECT_EQ(typesOf(list.get()), "CHILNPMDOUVS");
    WideBuffer<64> text;
    EXPECT_EQ(zu_FldList_getHandle(list.get(), W("h"), text, 63), 1);
    EXPECT_EQ(text.str(), W("1AF")) << "handles are upper-cased when made";
}

TEST(FldList, theBuildersMarkerForNoValueBecomesZero)
{
    const Owner list(zu_FldList_create(W("a"), ZU_FLD_INT, -9999, W("b"), ZU_FLD_REAL, -9999.005, W("c"), ZU_FLD_INT,
                                       -9998, W("d"), ZU_FLD_REAL, -9999.02, end));
    const std::tuple<WideLiteral, double> rows[] = {
        {W("A"), 0.0}, {W("B"), 0.0}, {W("C"), -9998.0}, {W("D"), -9999.02}};
    for (const auto& [name, rowValue] : rows) {
        double value = 1.0;
        EXPECT_EQ(zu_FldList_getReal(list.get(), name, &value), 1);
        EXPECT_EQ(value, rowValue) << str(name).size();
    }
}

TEST(FldList, findTakesTheFirstIgnoringCaseAndLeavesTheCursor)
{
    const Owner list(zu_FldList_create(end));
    zu_FldList_appInt(list.get(), W("Abc"), 1);
    zu_FldList_appInt(list.get(), W("ABC"), 2);
    FldNode* const node = zu_FldList_find(list.get(), W("aBC"));
    ASSERT_NE(node, nullptr);
    EXPECT_EQ(node->value.integer, 1);
    EXPECT_EQ(zu_FldList_curr(list.get()), node);
    EXPECT_EQ(zu_FldList_find(list.get(), W("abcd")), nullptr);
    EXPECT_EQ(zu_FldList_eol(list.get()), 1);
}

TEST(FldList, readingByNameAndAtTheCursor)
{
    const Owner list = everyType();
    // Statuses and values of every reader; "-" marks an output that must stay untouched.
    const struct
    {
        WideLiteral name;
        int getChar;
        WideLiteral text;
        int currChar, getInt;
        int32_t integer;
        int currInt, getReal;
        double real;
        int currReal, point, currList;
    } rows[] = {
        {W("C"), 1, W("12.75 mm"), 1, -3, 12, -3, -3, 12.75, 1, -3, -3},
        {W("H"), 1, W("1AF"), 1, -3, 77, -3, -3, 0.0, -3, -3, -3},
        {W("I"), -3, W("42"), -3, 1, 42, 1, 1, 42.0, 1, -3, -3},
        {W("N"), -3, W("-2.700000"), -3, 1, -2, 1, 1, -2.7, 1, -3, -3},
        {W("P"), -3, W(""), -3, -3, 77, -3, -3, 0.0, -3, 1, -3},
        {W("V"), -3, W(""), -3, -3, 77, -3, -3, 0.0, -3, -3, 1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(str(row.name)));
        WideBuffer<64> text(W("old"));
        EXPECT_EQ(zu_FldList_getChar(list.get(), row.name, text, 63), row.getChar);
        EXPECT_EQ(text.str(), row.text);
        text = W("old");
        EXPECT_EQ(zu_FldList_currChar(list.get(), text, 63), row.currChar);
        EXPECT_EQ(text.str(), row.text);
        int32_t integer = 77;
        EXPECT_EQ(zu_FldList_getLong(list.get(), row.name, &integer), row.getInt);
        EXPECT_EQ(integer, row.integer);
        integer = 77;
        EXPECT_EQ(zu_FldList_currLong(list.get(), &integer), row.currInt);
        EXPECT_EQ(integer, row.currInt == 1 ? row.integer : 77);
        double real = 55.0;
        EXPECT_EQ(zu_FldList_getReal(list.get(), row.name, &real), row.getReal);
        EXPECT_EQ(real, row.real);
        real = 55.0;
        EXPECT_EQ(zu_FldList_currReal(list.get(), &real), row.currReal);
        EXPECT_EQ(real, row.currReal == 1 ? row.real : 55.0);
        double point[3] = {-1.0, -1.0, -1.0};
        EXPECT_EQ(zu_FldList_getVector(list.get(), row.name, point), row.point);
        EXPECT_EQ(point[1] != -1.0, row.point == 1);
        EXPECT_EQ(zu_FldList_currPoint(list.get(), point), row.point);
        LnkList* nested = nullptr;
        EXPECT_EQ(zu_FldList_currList(list.get(), &nested), row.currList);
        EXPECT_EQ(nested != nullptr, row.currList == 1);
    }
}

TEST(FldList, missingFieldsAndNoCurrent)
{
    const Owner list(zu_FldList_create(end));
    WideBuffer<8> text(W("old"));
    int32_t integer = 7;
    double real = 7.0;
    double point[3];
    uint16_t type = 7;
    LnkList* nested = nullptr;
    EXPECT_EQ(zu_FldList_getChar(list.get(), W("x"), text, 7), -2);
    EXPECT_EQ(text.str(), W(""));
    EXPECT_EQ(zu_FldList_getReal(list.get(), W("x"), &real), -2);
    EXPECT_EQ(real, 0.0);
    EXPECT_TRUE(allAre(-1, {zu_FldList_currFldname(list.get(), text), zu_FldList_currFldtype(list.get(), &type),
                            zu_FldList_currHandle(list.get(), text, 7), zu_FldList_currInt(list.get(), &integer),
                            zu_FldList_currVector(list.get(), point)}));
    EXPECT_EQ(integer, 7);
    EXPECT_EQ(zu_FldList_currList(list.get(), &nested), -3) << "not -1";
    EXPECT_TRUE(allAre(0, {zu_FldList_delFld(list.get(), W("x")), zu_FldList_delFld(nullptr, W("x")),
                           zu_FldList_copyFld(list.get(), W("x"), list.get(), W("x"))}));
    EXPECT_EQ(zu_FldList_getChar(nullptr, W("x"), nullptr, 7), -2);
    EXPECT_EQ(zu_FldList_find(nullptr, W("a")), nullptr);
}

TEST(FldList, textsAreCutToTheBuffer)
{
    const Owner list(zu_FldList_create(W("C"), ZU_FLD_CHAR, W("abcdef"), W("E"), ZU_FLD_CHAR, end, end));
    WideBuffer<4> text;
    EXPECT_EQ(zu_FldList_getChar(list.get(), W("C"), text, 3), 1);
    EXPECT_EQ(text.str(), W("abc"));
    EXPECT_EQ(zu_FldList_currHandle(list.get(), text, -5), 1);
    EXPECT_EQ(text.str(), W(""));
    text = W("old");
    EXPECT_EQ(zu_FldList_getChar(list.get(), W("E"), text, 3), 1);
    EXPECT_EQ(text.str(), W("")) << "a null text reads as empty";
    text = W("old");
    EXPECT_EQ(zu_FldList_currChar(list.get(), text, 3), 1);
    EXPECT_EQ(text.str(), W("old")) << "at the cursor a null text writes nothing";
}

TEST(FldList, realsBeyondTheIntegersGiveTheNearest)
{
    const Owner list(zu_FldList_create(W("A"), ZU_FLD_REAL, 1e300, W("C"), ZU_FLD_REAL,
                                       std::numeric_limits<double>::quiet_NaN(), end));
    int32_t value = 7;
    zu_FldList_getInt(list.get(), W("A"), &value);
    EXPECT_EQ(value, INT32_MAX);
    zu_FldList_getInt(list.get(), W("C"), &value);
    EXPECT_EQ(value, 0);
    WideBuffer<400> text;
    EXPECT_EQ(zu_FldList_getChar(list.get(), W("A"), text, 1), -3);
    EXPECT_EQ(text.str().size(), 301u + 7u) << "numbers are formatted without a limit";
}

TEST(FldList, modifyingChangesTypeAndValueInPlace)
{
    const Owner list = everyType();
    FldNode* const handle = zu_FldList_find(list.get(), W("H"));
    EXPECT_EQ(zu_FldList_modHandle(list.get(), W("h"), W("low")), 1);
    EXPECT_EQ(str(handle->value.text), W("low")) << "never upper-cased when modified";
    EXPECT_EQ(zu_FldList_modChar(list.get(), W("h"), handle->value.text), 1);
    EXPECT_EQ(str(handle->value.text), W("low")) << "the field's own text";
    zu_FldList_modReal(list.get(), W("h"), 2.5);
    zu_FldList_modUnknown(list.get(), W("i"));
    zu_FldList_modLong(list.get(), W("c"), 9);
    zu_FldList_modInt(list.get(), W("l"), 8);
    zu_FldList_modDpoint(list.get(), W("p"), xyz);
    zu_FldList_modPoint(list.get(), W("m"), xyz);
    zu_FldList_modMpoint(list.get(), W("d"), xyz);
    zu_FldList_modVector(list.get(), W("n"), xyz);

    // The old nested list stays the caller's.
    LnkList* const nested = zu_FldList_find(list.get(), W("V"))->value.list;
    EXPECT_EQ(zu_FldList_modList(list.get(), W("V"), nullptr), 1);
    EXPECT_EQ(zu_LnkList_length(nested), 1u);
    zu_FldList_destroy(nested);
    EXPECT_EQ(typesOf(list.get()), "LNUIODPMOUVS");

    EXPECT_EQ(zu_FldList_modInt(list.get(), W("new"), 5), 1);
    EXPECT_EQ(typesOf(list.get()), "LNUIODPMOUVSI") << "a missing field is appended";
}

TEST(FldList, severalValuesUnderOneName)
{
    const Owner list(zu_FldList_create(end));
    for (int32_t value = 1; value <= 3; ++value)
        EXPECT_EQ(zu_FldList_addIntVal(list.get(), W("a"), value), 1);
    zu_FldList_addCharVal(list.get(), W("a"), W("t"));
    ASSERT_EQ(typesOf(list.get()), "V");
    FldList* const nested = zu_FldList_find(list.get(), W("A"))->value.list;
    EXPECT_EQ(typesOf(nested), "IIIC");
    EXPECT_EQ(static_cast<FldNode*>(nested->first->data)->value.integer, 1) << "the one before comes first";
    EXPECT_EQ(zu_FldList_convertNodeToList(list.get(), W("A")), nullptr) << "it is one already";

    const int32_t integer = 4;
    const double real = 0.5;
    const std::tuple<uint16_t, const void*, int32_t> rows[] = {
        {'C', W("x"), 1}, {'H', W("x"), 1}, {'I', &integer, 1}, {'N', &real, 1},  {'P', xyz, 1},
        {'O', xyz, 1},    {'S', xyz, 0},    {'V', xyz, 0},      {'c', W("x"), 0}, {'I', nullptr, 0}};
    for (const auto& [type, rowValue, result] : rows)
        EXPECT_EQ(zu_FldList_addVal(list.get(), W("Z"), type, rowValue), result) << char(type);
    EXPECT_EQ(typesOf(zu_FldList_find(list.get(), W("Z"))->value.list), "CHINPO");
    EXPECT_EQ(zu_FldList_addVal(nullptr, W("Z"), 'I', &integer), 1) << "whatever became of the value";
}

TEST(FldList, copyingFields)
{
    const Owner source = everyType();
    const Owner target(zu_FldList_create(W("I"), ZU_FLD_CHAR, W("old"), end));
    for (const zu_wchar* name :
         {W("C"), W("H"), W("I"), W("L"), W("N"), W("P"), W("M"), W("D"), W("O"), W("U"), W("V"), W("S")})
        EXPECT_EQ(zu_FldList_copyFld(source.get(), name, target.get(), name), 1);
    EXPECT_EQ(typesOf(target.get()), "ICCLNPMDO");

    const Wide longText(600, W('x'));
    zu_FldList_modChar(source.get(), W("C"), longText.c_str());
    zu_FldList_copyFld(source.get(), W("C"), target.get(), W("C"));
    EXPECT_EQ(str(zu_FldList_find(target.get(), W("C"))->value.text), longText.substr(0, 512));
}

TEST(FldList, copyingLists)
{
    const Owner list = everyType();
    const Owner copy(zu_FldList_copy(list.get()));
    EXPECT_EQ(typesOf(copy.get()), "CHILNPMDOUVU") << "string lists arrive as unknown";
    EXPECT_NE(zu_FldList_find(copy.get(), W("V"))->value.list, zu_FldList_find(list.get(), W("V"))->value.list);
    EXPECT_EQ(zu_FldList_concatenate(copy.get(), copy.get()), 1) << "onto itself";
    EXPECT_EQ(zu_FldList_count(copy.get()), 24u);
}

TEST(FldList, deletingAndANullList)
{
    const Owner list = everyType();
    EXPECT_EQ(zu_FldList_delFld(list.get(), W("v")), 1);
    EXPECT_EQ(zu_FldList_curr(list.get())->type, ZU_FLD_STRLIST);
    EXPECT_EQ(zu_FldList_delCurr(list.get()), 1);
    EXPECT_EQ(zu_FldList_curr(list.get())->type, ZU_FLD_UNKNOWN);
    EXPECT_EQ(zu_FldList_prev(list.get()), 1);
    EXPECT_EQ(zu_FldList_next(list.get()), 1);
    EXPECT_EQ(zu_FldList_curr(list.get())->type, ZU_FLD_UNKNOWN);
    EXPECT_EQ(zu_FldList_appChar(nullptr, W("x"), W("y")), 1) << "appending to a null list is passed over";
    EXPECT_EQ(zu_FldList_appList(nullptr, W("x"), zu_FldList_create(end)), 1);
    EXPECT_TRUE(allAre(0, {zu_FldList_destroy(nullptr), zu_FldList_destroyNode(nullptr), zu_FldList_start(nullptr)}));
    EXPECT_EQ(zu_FldList_destroyNode(zu_FldList_newChar(nullptr, nullptr)), 1);
}

TEST(FldList, shortageOfMemoryNeitherLeaksNorLoses)
{
    sweepAllocations(
        [] {
            const Owner list(zu_FldList_create(W("A"), ZU_FLD_CHAR, W("text"), W("B"), ZU_FLD_HANDLE, W("h"), end));
            if (list == nullptr)
                return;
            zu_FldList_addIntVal(list.get(), W("A"), 1);
            LnkList* const strings = zu_StrList_create(W("s"), end);
            if (zu_FldList_appStrList(list.get(), W("S"), strings) == ZU_FLD_NO_MEMORY)
                zu_StrList_destroy(strings);
            const Owner copy(zu_FldList_copy(list.get()));
            if (copy != nullptr) {
                EXPECT_EQ(zu_FldList_count(copy.get()), zu_FldList_count(list.get()));
            }
        },
        [] {});
}

// Every operation of its type gives the code and the value that its name says.
TEST(FldList, eachTypeHasItsOperations)
{
    const struct
    {
        char code;
        int32_t (*append)(FldList*, const zu_wchar*, const double*);
        int32_t (*add)(FldList*, const zu_wchar*, const double*);
        FldNode* (*make)(const zu_wchar*, const double*);
    } points[] = {{'P', zu_FldList_appPoint, zu_FldList_addPointVal, zu_FldList_newPoint},
                  {'M', zu_FldList_appMpoint, zu_FldList_addMpointVal, zu_FldList_newMpoint},
                  {'D', zu_FldList_appDpoint, zu_FldList_addDpointVal, zu_FldList_newDpoint},
                  {'O', zu_FldList_appVector, zu_FldList_addVectorVal, zu_FldList_newVector}};
    for (const auto& row : points) {
        const Owner list(zu_FldList_create(end));
        EXPECT_EQ(row.append(list.get(), W("p"), xyz), 1);
        EXPECT_EQ(row.add(list.get(), W("p"), xyz), 1) << "the second value";
        const FldNode* const second =
            static_cast<const FldNode*>(zu_FldList_find(list.get(), W("P"))->value.list->last->data);
        EXPECT_EQ(second->type, row.code);
        EXPECT_EQ(second->value.point[2], xyz[2]);
        FldNode* const node = row.make(W("p"), xyz);
        EXPECT_EQ(node->type, row.code);
        EXPECT_EQ(node->value.point[1], xyz[1]);
        zu_FldList_destroyNode(node);
    }

    const Owner list(zu_FldList_create(end));
    zu_FldList_appHandle(list.get(), W("a"), W("ff"));
    zu_FldList_appLong(list.get(), W("b"), -7);
    zu_FldList_appReal(list.get(), W("c"), 0.5);
    zu_FldList_appUnknown(list.get(), W("d"));
    EXPECT_EQ(typesOf(list.get()), "HLNU");
    zu_FldList_addHandleVal(list.get(), W("a"), W("ee"));
    zu_FldList_addLongVal(list.get(), W("a"), -8);
    zu_FldList_addRealVal(list.get(), W("a"), 0.25);
    zu_FldList_addUnknownVal(list.get(), W("a"));
    EXPECT_EQ(typesOf(zu_FldList_find(list.get(), W("A"))->value.list), "HHLNU");

    FldList* const inner = zu_FldList_create(end);
    FldNode* const nodes[] = {zu_FldList_newHandle(W("h"), W("a1")), zu_FldList_newInt(W("i"), 1),
                              zu_FldList_newLong(W("l"), 2),         zu_FldList_newReal(W("n"), 3.0),
                              zu_FldList_newList(W("v"), inner),     zu_FldList_newUnknown(W("u"))};
    std::string codes;
    for (FldNode* const node : nodes)
        codes += static_cast<char>(node->type);
    EXPECT_EQ(codes, "HILNVU");
    for (FldNode* const node : nodes)
        EXPECT_EQ(zu_FldList_destroyNode(node), 1);
}

} // namespace
