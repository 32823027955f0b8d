#include "db/datafile.h"

namespace zu::datafile {

CbDataFile* open(const zu_wchar*, const CbSettings&)
{
    return nullptr;
}

void close(CbDataFile*) {}

CbTag* nextTag(CbDataFile&, CbTag*)
{
    return nullptr;
}

const char* nameOf(const CbTag&)
{
    return "";
}

CbIndex* createIndex(CbDataFile&, const char*, const CbTagInfo*)
{
    return nullptr;
}

CbField* findField(CbDataFile&, const zu_wchar*)
{
    return nullptr;
}

std::optional<Content> contentOf(const CbField&)
{
    return std::nullopt;
}

void assign(CbField&, double) {}

void assign(CbField&, std::int32_t) {}

void assign(CbField&, const zu_wchar*) {}

double toDouble(std::string_view)
{
    return 0.0;
}

std::int32_t toInt(std::string_view)
{
    return 0;
}

} // namespace zu::datafile
