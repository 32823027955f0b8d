#include "zu_Cb.h"

#include "containers/strlist.h"
#include "db/datafile.h"
#include "frame/format.h"
#include "frame/guard.h"
#include "zu_Fname.h"

#include <algorithm>
#include <cstddef>

static_assert(offsetof(CbTagInfo, name) == 0 && offsetof(CbTagInfo, expression) == 8 &&
              offsetof(CbTagInfo, filter) == 16 && offsetof(CbTagInfo, unique) == 24 &&
              offsetof(CbTagInfo, descending) == 28 && sizeof(CbTagInfo) == 32);

using namespace zu;

namespace {

struct StrListDeleter
{
    void operator()(StrList* list) const noexcept { zu_StrList_destroy(list); }
};

struct DataFileDeleter
{
    void operator()(CbDataFile* file) const noexcept { datafile::close(file); }
};

struct TagsDeleter
{
    std::int32_t count;
    void operator()(CbTagInfo* tags) const noexcept { zu_Cb_freeTags(tags, count); }
};

// The low bytes of the units: what the data-file layer takes for text.
ByteString lowBytes(WideView text)
{
    ByteString bytes;
    for (const zu_wchar unit : text)
        bytes += static_cast<char>(unit & 0xFF);
    return bytes;
}

char* duplicateLowBytes(WideView text)
{
    const ByteString bytes = lowBytes(text);
    auto* const copy = static_cast<char*>(zu_Malloc(bytes.size() + 1));
    if (copy == nullptr)
        throw std::bad_alloc();
    *std::copy(bytes.begin(), bytes.end(), copy) = '\0';
    return copy;
}

bool equalIgnoringCase(WideView text, std::string_view bytes)
{
    return std::equal(text.begin(), text.end(), bytes.begin(), bytes.end(), [](zu_wchar unit, char byte) {
        return text::upper(unit) == text::upper(static_cast<unsigned char>(byte));
    });
}

} // namespace

void zu_Cb_init(CbSettings* settings)
{
    if (settings != nullptr)
        *settings = {};
}

int32_t zu_Cb_createNdx(const zu_wchar* path, const zu_wchar* tags, int32_t unique)
{
    return guarded(0, [&] {
        CbSettings settings;
        zu_Cb_init(&settings);
        WideString name(text::view(path));
        name.resize(name.size() + WideView(ZU_W(".dbf")).size()); // room for what is appended
        zu_Fname_addExt(name.data(), ZU_W("dbf"));
        const std::unique_ptr<CbDataFile, DataFileDeleter> file(datafile::open(name.c_str(), settings));
        if (file == nullptr)
            return 0;
        zu_Fname_rmvExt(name.data());
        return zu_Cb_i4create(file.get(), name.c_str(), tags, 0, unique);
    });
}

int32_t zu_Cb_i4create(CbDataFile* file, const zu_wchar* name, const zu_wchar* tags, int32_t, int32_t unique)
{
    return guarded(0, [&] {
        const std::unique_ptr<StrList, StrListDeleter> items(zu_Cb_parseTagInfo(tags));
        if (items == nullptr)
            return 0;
        const auto count = static_cast<std::int32_t>(zu_StrList_count(items.get()));
        // One entry more, which stays all zero and ends the array.
        const std::unique_ptr<CbTagInfo[], TagsDeleter> entries(
            static_cast<CbTagInfo*>(zu_Calloc(static_cast<std::uint64_t>(count) + 1, sizeof(CbTagInfo))), {count});
        if (entries == nullptr)
            return 0;
        std::int32_t index = 0;
        for (const LnkNode* node = items->first; node != nullptr; node = node->next, ++index) {
            CbTagInfo& entry = entries[static_cast<std::size_t>(index)];
            entry.name = duplicateLowBytes(formatted(ZU_W("TAG%03d"), index));
            entry.expression = duplicateLowBytes(stringOf(node));
            entry.unique = unique;
        }
        if (file == nullptr)
            return 0;
        return datafile::createIndex(*file, lowBytes(text::view(name)).c_str(), entries.get()) != nullptr ? 1 : 0;
    });
}

StrList* zu_Cb_parseTagInfo(const zu_wchar* tags)
{
    return zu_StrList_fromDelimitedString(tags, ZU_W(", "));
}

void zu_Cb_freeTags(CbTagInfo* tags, int32_t count)
{
    for (int32_t index = 0; tags != nullptr && index < count; ++index) {
        zu_Free(tags[index].name);
        zu_Free(tags[index].expression);
        zu_Free(tags[index].filter);
    }
    zu_Free(tags);
}

CbTag* zu_Cb_findTag(CbDataFile* file, const zu_wchar* name)
{
    if (file == nullptr || name == nullptr)
        return nullptr;
    for (CbTag* tag = datafile::nextTag(*file, nullptr); tag != nullptr; tag = datafile::nextTag(*file, tag)) {
        if (equalIgnoringCase(name, datafile::nameOf(*tag)))
            return tag;
    }
    return nullptr;
}

double zu_c4atod(const char* text, int32_t length)
{
    return text == nullptr || length < 0 ? 0.0
                                         : datafile::toDouble(std::string_view(text, static_cast<std::size_t>(length)));
}

int32_t zu_c4atoi(const char* text, int32_t length)
{
    return text == nullptr || length < 0 ? 0
                                         : datafile::toInt(std::string_view(text, static_cast<std::size_t>(length)));
}
