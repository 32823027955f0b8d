// The layer that reads and writes data files itself: what the operations on them need of it. The library has none, and
// datafile.cpp answers "none" throughout; a layer that is put in later implements these functions instead, and nothing
// else changes.
#pragma once

#include "zu_Cb.h"

#include <optional>
#include <string_view>

namespace zu::datafile {

// What a field of the current record holds; the texts are valid until the record changes.
struct Content
{
    std::string_view name;
    std::string_view text;
    std::uint32_t width;
    std::uint32_t decimals;
    char type;
};

// Null when it cannot be opened. The settings are read during the call only.
CbDataFile* open(const zu_wchar* path, const CbSettings& settings);
void close(CbDataFile* file);

// The tags of a file, one after the other: the first one for a null tag, null behind the last one.
CbTag* nextTag(CbDataFile& file, CbTag* tag);
const char* nameOf(const CbTag& tag);

// Creates an index; tags ends with an entry that is all zero. Null when it cannot be created.
CbIndex* createIndex(CbDataFile& file, const char* name, const CbTagInfo* tags);

CbField* findField(CbDataFile& file, const zu_wchar* name);
std::optional<Content> contentOf(const CbField& field);
void assign(CbField& field, double value);
void assign(CbField& field, std::int32_t value);
void assign(CbField& field, const zu_wchar* value);

// The numbers in fixed-length 8-bit texts.
double toDouble(std::string_view text);
std::int32_t toInt(std::string_view text);

} // namespace zu::datafile
