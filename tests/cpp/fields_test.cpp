// Field lists of the C++ interface.
#include "support/memory.h"
#include "support/wide.h"
#include "zu.hpp"

#include <limits>

namespace {

using namespace zutest;
using Status = zu::field_status;

zu::fields sample()
{
    auto list = zu::fields::of("tag", "P-101", "size", 114.6, "runs", 3, "at", Point{1, 2, 3}, "dir", Vector{0, 0, 1},
                               "h", zu::handle{W("h1")}, "inner", zu::fields::of("depth", 2), "notes",
                               zu::string_list::of("a", "b"), "num", "42.5");
    list.append_unknown("none");
    return list;
}

TEST(CppFields, readsByType)
{
    const auto list = sample();
    EXPECT_EQ(list.get<std::string>("TAG").value(), "P-101");
    EXPECT_EQ(*list.get<std::int32_t>("size"), 114) << "without the fraction";
    EXPECT_EQ(list.get<Vector>("dir")->z, 1.0);
    EXPECT_EQ(list.get<zu::handle>("h")->text, W("H1")) << "appended handles are upper-cased";
    EXPECT_EQ(*list.get<zu::fields_view>("inner")->front().as<std::int32_t>(), 2);
    EXPECT_EQ(list.get<zu::strings_view>("notes")->back(), W("b"));
    EXPECT_EQ(list.get<double>("nowhere").value_or(-1.0), -1.0);
    EXPECT_THROW(list.get<double>("nowhere").value(), std::bad_optional_access);
}

// Whether there is a value, and whether there is a converted one, for each request that is answered with a status.
TEST(CppFields, statuses)
{
    const auto list = sample();
    const auto told = [](const auto& result) {
        return std::tuple(result.status(), result.has_value(), result.converted().has_value());
    };
    using Told = std::tuple<Status, bool, bool>;
    const Told ok{Status::ok, true, true};
    const Told missing{Status::not_found, false, false};
    const Told wrong{Status::wrong_type, false, false};
    const Told converted{Status::wrong_type, false, true};
    const struct
    {
        const char* field;
        Told asText, asHandle, asInteger, asReal, asPoint, asList, asStrings;
    } rows[] = {
        {"tag", ok, ok, converted, converted, wrong, wrong, wrong},
        {"h", ok, ok, wrong, wrong, wrong, wrong, wrong},
        {"size", converted, wrong, ok, ok, wrong, wrong, wrong},
        {"at", wrong, wrong, wrong, wrong, ok, wrong, wrong},
        {"inner", wrong, wrong, wrong, wrong, wrong, ok, wrong},
        {"notes", wrong, wrong, wrong, wrong, wrong, wrong, ok},
        {"none", wrong, wrong, wrong, wrong, wrong, wrong, wrong},
        {"nowhere", missing, missing, missing, missing, missing, missing, missing},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(told(list.get<std::string>(row.field)), row.asText) << row.field;
        EXPECT_EQ(told(list.get<zu::handle>(row.field)), row.asHandle) << row.field;
        EXPECT_EQ(told(list.get<std::int32_t>(row.field)), row.asInteger) << row.field;
        EXPECT_EQ(told(list.get<double>(row.field)), row.asReal) << row.field;
        EXPECT_EQ(told(list.get<Point>(row.field)), row.asPoint) << row.field;
        EXPECT_EQ(told(list.get<zu::fields_view>(row.field)), row.asList) << row.field;
        EXPECT_EQ(told(list.get<zu::strings_view>(row.field)), row.asStrings) << row.field;
    }
    EXPECT_EQ(list.get<std::string>("runs").converted(), "3");
    EXPECT_EQ(list.get<double>("num").converted(), 42.5);
    EXPECT_EQ(list.get<double>("num").optional(), std::nullopt);
}

TEST(CppFields, textsOfAnyLength)
{
    const Wide longText(5000, W('x'));
    auto list = zu::fields::of("long", longText, "null", nullptr, "large", -std::numeric_limits<double>::max());
    EXPECT_EQ(*list.get<zu::wide_string>("long"), longText);
    EXPECT_EQ(*list.get<zu::wide_string>("null"), W(""));
    EXPECT_EQ(list.get<zu::wide_string>("large").converted()->size(), 317u) << "-, 309 digits, the point, 6 digits";
}

TEST(CppFields, iterates)
{
    auto list = sample();
    Wide names;
    std::string types;
    for (const zu::field item : list) {
        names += Wide(item.name()) + W(" ");
        types += static_cast<char>(item.type());
    }
    EXPECT_EQ(names, W("TAG SIZE RUNS AT DIR H INNER NOTES NUM NONE "));
    EXPECT_EQ(types, "CNIPOHVSCU");

    EXPECT_EQ(std::get<Vector>(list.find("dir")->value()).z, 1.0);
    EXPECT_EQ(std::get<zu::strings_view>(list.find("notes")->value()).size(), 2u);
    EXPECT_TRUE(std::holds_alternative<std::monostate>(list.find("none")->value()));
    EXPECT_EQ(list.find("runs")->as<double>(), std::nullopt) << "as gives what is there";
}

TEST(CppFields, setsAndReleasesWhatWasThere)
{
    const auto before = liveBlocks();
    {
        auto list = sample();
        list.set("inner", 5);
        list.set("notes", "text");
        list.set("tag", zu::fields::of("A", 1));
        list.set("tag", zu::fields::of("B", 2));
        list.set("size", zu::handle{W("h2")});
        list.set("runs", Point{4, 5, 6});
        list.set("at", Vector{7, 8, 9});
        list.set_unknown("h");
        list.set("new", 2.5);
        EXPECT_EQ(list.size(), 11u);
        EXPECT_EQ(list.get<zu::fields_view>("tag")->front().name(), W("B"));
        EXPECT_EQ(list.get<zu::handle>("size")->text, W("h2"));
        // The text may be the field's own.
        list.set("notes", list.find("notes")->as<zu::wide_view>()->substr(1));
        EXPECT_EQ(*list.get<std::string>("notes"), "ext");
        EXPECT_TRUE(list.remove("notes"));
    }
    EXPECT_EQ(liveBlocks(), before);
}

TEST(CppFields, withoutMemory)
{
    auto list = sample();
    const AllocationLimit limit(0);
    EXPECT_THROW(list.set("tag", "another text"), std::bad_alloc) << "an old field has no status for it";
    EXPECT_THROW(list.append("new", "x"), std::bad_alloc);
    zu::fields none(zu::adopt, nullptr);
    EXPECT_THROW(none.set("x", 1), std::invalid_argument);
    EXPECT_EQ(none.get<double>("x").status(), Status::not_found);
}

} // namespace
