#include "host/builtin/builtin.h"
#include "host/builtin/com_object.h"
#include "platform/files.h"

namespace zu::host {
namespace {

// Answers from the file system itself, so that there is nothing to tell it about changes.
class FileService final : public ComObject<HostFileService>
{
public:
    HRESULT FileExists(BSTR path, VARIANT_BOOL* exists) override { return answer(path, exists, platform::isFile); }
    HRESULT FolderExists(BSTR path, VARIANT_BOOL* exists) override
    {
        return answer(path, exists, platform::isDirectory);
    }
    HRESULT Revalidate(BSTR) override { return S_OK; }

private:
    static HRESULT answer(BSTR path, VARIANT_BOOL* exists, bool (*test)(WideView))
    {
        if (exists == nullptr)
            return E_POINTER;
        *exists = toVariantBool(guarded(false, [&] { return test(viewOf(path)); }));
        return S_OK;
    }
};

} // namespace

ComPtr<HostFileService> makeBuiltInFileService()
{
    return makeObject<FileService, HostFileService>();
}

} // namespace zu::host
