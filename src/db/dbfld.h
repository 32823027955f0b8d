// What the sources of the table interface share of fields.
#pragma once

#include "frame/text.h"
#include "zu_DbFldList.h"

namespace zu::db {

// The fields of a list from the head, for range-for; null has none. The cursor stays where it is.
class FieldsOf
{
public:
    class Iterator
    {
    public:
        explicit Iterator(const LnkNode* first) : node(first) { skipNull(); }
        DbFldNode& operator*() const { return *static_cast<DbFldNode*>(node->data); }
        Iterator& operator++()
        {
            node = node->next;
            skipNull();
            return *this;
        }
        bool operator==(const Iterator&) const = default;

    private:
        void skipNull()
        {
            while (node != nullptr && node->data == nullptr)
                node = node->next;
        }
        const LnkNode* node;
    };

    explicit FieldsOf(const DbFldList* fields) : list(fields) {}
    Iterator begin() const { return Iterator(list == nullptr ? nullptr : list->first); }
    Iterator end() const { return Iterator(nullptr); }

private:
    const DbFldList* list;
};

inline WideView valueOf(const DbFldNode& field)
{
    return text::view(field.value);
}

// Two terminated texts, ignoring case.
inline bool sameName(const zu_wchar* a, const zu_wchar* b)
{
    for (;; ++a, ++b) {
        if (*a != *b && text::upper(*a) != text::upper(*b))
            return false;
        if (*a == 0)
            return true;
    }
}

// The first field of a name, ignoring case; null when there is none. The cursor stays where it is.
inline DbFldNode* findField(const DbFldList* fields, const zu_wchar* name)
{
    for (DbFldNode& field : FieldsOf(fields)) {
        if (sameName(field.name, name))
            return &field;
    }
    return nullptr;
}

// A field whose value is taken over as it is, neither copied nor trimmed; null, and nothing taken, without memory.
DbFldNode* newField(WideView name, WidePtr value, std::uint32_t width, std::uint32_t precision, zu_wchar type);

// Appends a field to a list that owns it from then on; without memory the field is destroyed.
bool appendField(DbFldList* list, DbFldNode* field);

// Sets a value by the rule for values; false for null, which leaves the field without one, and without memory, which
// leaves it as it was.
bool setValue(DbFldNode& field, const zu_wchar* value);

struct FieldsDeleter
{
    void operator()(DbFldList* list) const noexcept { zu_DbFldList_destroy(list); }
};
using FieldsPtr = std::unique_ptr<DbFldList, FieldsDeleter>;

} // namespace zu::db
