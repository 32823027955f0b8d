#include "platform/com.h"

namespace zu::platform {

void raiseComError(HRESULT result, IUnknown* source, const IID& interfaceId)
{
    ComPtr<ISupportErrorInfo> support;
    ComPtr<IErrorInfo> info;
    if (source != nullptr && SUCCEEDED(source->QueryInterface(IID_ISupportErrorInfo, support.outUntyped())) &&
        support && support->InterfaceSupportsErrorInfo(interfaceId) == S_OK && GetErrorInfo(0, info.out()) != S_OK)
        info = ComPtr<IErrorInfo>();
    throw _com_error(result, info.release());
}

} // namespace zu::platform

namespace zu {

Bstr::Bstr(WideView units)
{
    constexpr std::size_t most = 0x7FFFFFFF / sizeof(zu_wchar);
    if (units.size() <= most)
        text = SysAllocStringLen(units.data(), static_cast<UINT>(units.size()));
    if (text == nullptr)
        throw std::bad_alloc();
}

} // namespace zu
