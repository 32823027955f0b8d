// Making, finding and describing fields.
#include "db/datafile.h"
#include "db/dbfld.h"
#include "files/stream.h"
#include "frame/console.h"
#include "frame/guard.h"
#include "frame/trace.h"
#include "zu_File.h"

#include <cstdarg>
#include <cstddef>
#include <utility>

static_assert(offsetof(DbFldNode, name) == 0 && offsetof(DbFldNode, value) == 128 &&
              offsetof(DbFldNode, width) == 136 && offsetof(DbFldNode, precision) == 140 &&
              offsetof(DbFldNode, type) == 144);

namespace zu::db {
namespace {

constexpr std::int32_t longestTemplateLine = 256;
constexpr std::size_t specificationSize = 7; // TWWWPPP

std::int32_t destroyField(void* field)
{
    return zu_DbFldNode_destroy(field);
}

std::int32_t hasUpperCaseName(const void* field, const void* name)
{
    const auto* stored = static_cast<const DbFldNode*>(field)->name;
    const auto* wanted = static_cast<const zu_wchar*>(name);
    for (; *stored == text::upper(*wanted); ++stored, ++wanted) {
        if (*stored == 0)
            return 0;
    }
    return 1;
}

using Insertion = std::int32_t (*)(LnkList*, void*);

std::int32_t insertNew(DbFldList* list, Insertion insertion, DbFldNode* field)
{
    if (field == nullptr)
        return 0;
    const std::int32_t result = insertion(list, field);
    if (result == 0)
        zu_DbFldNode_destroy(field);
    return result;
}

// The next word of a text separated by blanks, as zu_Str_nextSDLWord takes it; text becomes what stands behind it.
WideView nextWord(WideView& text)
{
    while (!text.empty() && text.front() == ZU_W(' '))
        text.remove_prefix(1);
    const WideView word = text.substr(0, text.find(ZU_W(' ')));
    text.remove_prefix(word.size());
    return word;
}

// The number in three digits; what stands behind the last digit does not count.
std::uint32_t digits(WideView text)
{
    std::uint32_t number = 0;
    for (; !text.empty() && text::isDigit(text.front()); text.remove_prefix(1))
        number = number * 10 + static_cast<std::uint32_t>(text.front() - ZU_W('0'));
    return number;
}

DbFldNode* copyOf(const DbFldNode& field)
{
    WidePtr value;
    if (field.value != nullptr) {
        value.reset(text::duplicate(field.value));
        if (value == nullptr)
            return nullptr;
    }
    auto* const copy = static_cast<DbFldNode*>(zu_Malloc(sizeof(DbFldNode)));
    if (copy != nullptr) {
        *copy = field;
        copy->value = value.release();
    }
    return copy;
}

// Null when there is no file, no descriptor in it, or no memory.
FieldsPtr readTemplate(WideView path)
{
    const Stream file = openStream(path, "rt");
    FieldsPtr list(file != nullptr ? zu_LnkList_create(nullptr) : nullptr);
    if (list == nullptr)
        return nullptr;
    platform::skipByteOrderMark(file.get());
    text::Buffer<longestTemplateLine> line;
    while (zu_File_readLine(file.get(), line.units, longestTemplateLine) == 1) {
        text::Buffer<longestTemplateLine> name;
        zu_wchar type = 0;
        std::uint32_t width = 0;
        std::uint32_t precision = 0;
        if (zu_DbFldList_parseFldDesc(line.units, name.units, &type, &width, &precision) == 1 &&
            zu_DbFldList_insEnd(list.get(), name.units, nullptr, width, precision, type) == 0)
            return nullptr;
    }
    return list->count == 0 ? nullptr : std::move(list);
}

} // namespace

DbFldNode* newField(WideView name, WidePtr value, std::uint32_t width, std::uint32_t precision, zu_wchar type)
{
    auto* const field = static_cast<DbFldNode*>(zu_Malloc(sizeof(DbFldNode)));
    if (field == nullptr)
        return nullptr;
    *field = {};
    text::copyCut(field->name, ZU_DBFLD_NAME_SIZE, name);
    field->value = value.release();
    field->width = width;
    field->precision = precision;
    field->type = text::upper(type);
    return field;
}

bool appendField(DbFldList* list, DbFldNode* field)
{
    return insertNew(list, zu_LnkList_insEnd, field) == 1;
}

} // namespace zu::db

using namespace zu;
using namespace zu::db;

DbFldNode* zu_DbFldNode_new(const zu_wchar* name, const zu_wchar* value, uint32_t width, uint32_t precision,
                            zu_wchar type)
{
    DbFldNode* const field = newField(text::view(name), nullptr, width, precision, type);
    if (field != nullptr && value != nullptr && !setValue(*field, value)) {
        zu_DbFldNode_destroy(field);
        return nullptr;
    }
    return field;
}

int32_t zu_DbFldNode_destroy(void* node)
{
    // Its exit line names another operation: that is how it is meant.
    ZU_TRACE_EXIT_AS(dbFld, "zu_DbFldNode_destroy", "Entering", "zu_StrListNode_destroy");
    auto* const field = static_cast<DbFldNode*>(node);
    if (field == nullptr)
        return 0;
    zu_Free(field->value);
    zu_Free(field);
    return 1;
}

DbFldNode* zu_DbFldNode_fromFld(const CbField* field)
{
    const auto content = field == nullptr ? std::nullopt : datafile::contentOf(*field);
    if (!content)
        return nullptr;
    return guarded(static_cast<DbFldNode*>(nullptr), [&] {
        return zu_DbFldNode_new(text::widen(content->name).c_str(), text::widen(content->text).c_str(), content->width,
                                content->decimals, static_cast<unsigned char>(content->type));
    });
}

DbFldList* zu_DbFldList_create(const zu_wchar* name, ...)
{
    FieldsPtr list(zu_LnkList_create(nullptr));
    if (list == nullptr)
        return nullptr;
    va_list arguments;
    va_start(arguments, name);
    bool complete = true;
    for (const zu_wchar* next = name; next != nullptr && complete; next = va_arg(arguments, const zu_wchar*)) {
        const zu_wchar* const value = va_arg(arguments, const zu_wchar*);
        DbFldNode* const field = zu_DbFldNode_new(next, value == nullptr ? ZU_W("") : value, 0, 0, ZU_DBFLD_TEXT);
        if (field != nullptr)
            text::makeUpper(field->name);
        complete = appendField(list.get(), field);
    }
    va_end(arguments);
    return complete ? list.release() : nullptr;
}

DbFldList* zu_DbFldList_copy(DbFldList* list)
{
    if (list == nullptr)
        return nullptr;
    FieldsPtr copy(zu_LnkList_create(nullptr));
    if (copy == nullptr)
        return nullptr;
    for (const DbFldNode& field : FieldsOf(list)) {
        if (!appendField(copy.get(), copyOf(field)))
            return nullptr;
    }
    return copy.release();
}

void zu_DbFldList_destroy(DbFldList* list)
{
    zu_LnkList_destroy(list, destroyField);
}

void zu_DbFldList_freeValues(DbFldList* list)
{
    for (DbFldNode& field : FieldsOf(list))
        zu_Free(std::exchange(field.value, nullptr));
}

int32_t zu_DbFldList_insStart(DbFldList* list, const zu_wchar* name, const zu_wchar* value, uint32_t width,
                              uint32_t precision, zu_wchar type)
{
    return insertNew(list, zu_LnkList_insStart, zu_DbFldNode_new(name, value, width, precision, type));
}

int32_t zu_DbFldList_insEnd(DbFldList* list, const zu_wchar* name, const zu_wchar* value, uint32_t width,
                            uint32_t precision, zu_wchar type)
{
    return insertNew(list, zu_LnkList_insEnd, zu_DbFldNode_new(name, value, width, precision, type));
}

int32_t zu_DbFldList_delCurr(DbFldList* list)
{
    return zu_LnkList_delCurr(list, destroyField);
}

int32_t zu_DbFldList_delFld(DbFldList* list, const zu_wchar* name)
{
    return zu_DbFldList_find(list, name) == 0 ? 0 : zu_DbFldList_delCurr(list);
}

int32_t zu_DbFldList_find(DbFldList* list, const zu_wchar* name)
{
    return name != nullptr && zu_LnkList_search(list, name, hasUpperCaseName) != nullptr;
}

DbFldNode* zu_DbFldList_findFld(DbFldList* list, const zu_wchar* name)
{
    if (list == nullptr)
        return nullptr;
    // By hand, because reading a table field by field is mostly this.
    const zu_wchar* const wanted = name == nullptr ? ZU_W("") : name;
    for (LnkNode* node = list->first; node != nullptr; node = node->next) {
        auto* const field = static_cast<DbFldNode*>(node->data);
        if (field != nullptr && sameName(field->name, wanted)) {
            list->current = node;
            return field;
        }
    }
    list->current = nullptr;
    return nullptr;
}

int32_t zu_DbFldList_start(DbFldList* list)
{
    return zu_LnkList_start(list);
}

int32_t zu_DbFldList_next(DbFldList* list)
{
    return zu_LnkList_next(list);
}

int32_t zu_DbFldList_eol(DbFldList* list)
{
    return zu_LnkList_eol(list);
}

uint32_t zu_DbFldList_length(DbFldList* list)
{
    return zu_LnkList_length(list);
}

DbFldNode* zu_DbFldList_getNth(DbFldList* list, int32_t index)
{
    return static_cast<DbFldNode*>(zu_LnkList_getNth(list, index));
}

int32_t zu_DbFldList_parseFldDesc(const zu_wchar* line, zu_wchar* name, zu_wchar* type, uint32_t* width,
                                  uint32_t* precision)
{
    WideView rest = text::view(line);
    const WideView word = nextWord(rest);
    const WideView specification = nextWord(rest).substr(0, specificationSize);
    if (name != nullptr) {
        text::copyCut(name, word.size(), word);
        text::makeUpper(name);
    }
    if (word.empty() || specification.size() != specificationSize)
        return 0;
    if (type != nullptr)
        *type = text::upper(specification[0]);
    if (width != nullptr)
        *width = digits(specification.substr(1, 3));
    if (precision != nullptr)
        *precision = digits(specification.substr(4, 3));
    return 1;
}

DbFldList* zu_DbFldList_fromTemplate(const zu_wchar* path)
{
    return guarded(static_cast<DbFldList*>(nullptr), [&] { return readTemplate(text::view(path)).release(); });
}

void zu_DbFldList_printList(DbFldList* list)
{
    guarded([&] {
        for (const DbFldNode& field : FieldsOf(list)) {
            printConsole(ZU_W("%-16s "), field.name);
            if (field.value != nullptr)
                printConsole(ZU_W("%c:%s\n"), field.type, field.value);
        }
    });
}
