#include "zu_Base36.h"

#include "frame/text.h"

namespace {

using namespace zu;

constexpr WideView alphabet = ZU_W("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ");
constexpr std::size_t longest = 10;

double digitValue(zu_wchar unit)
{
    const std::size_t index = alphabet.find(unit);
    return index == WideView::npos ? -1.0 : static_cast<double>(index); // what is no digit lowers the value: meant
}

} // namespace

double zu_Base36_toBase10(const zu_wchar* digits)
{
    double value = 0.0;
    for (zu_wchar unit : text::view(digits))
        value = value * 36.0 + digitValue(unit);
    return value;
}

zu_wchar* zu_Base36_fromBase10(double value)
{
    static text::Buffer<longest> result;
    if (!(value >= 0.0 && value <= ZU_BASE36_MAX))
        return result.clear();
    zu_wchar digits[longest];
    std::size_t first = longest;
    auto rest = static_cast<uint64_t>(value);
    do {
        digits[--first] = alphabet[rest % alphabet.size()];
        rest /= alphabet.size();
    } while (rest > 0);
    return result.set(WideView(digits + first, longest - first));
}

int32_t zu_Base36_compare(const zu_wchar* a, const zu_wchar* b)
{
    const double valueOfA = zu_Base36_toBase10(a);
    const double valueOfB = zu_Base36_toBase10(b);
    return (valueOfA > valueOfB) - (valueOfA < valueOfB);
}

int32_t zu_Base36_increment(zu_wchar* digits, uint32_t step)
{
    if (digits == nullptr)
        return 0;
    text::copyCut(digits, longest, text::view(zu_Base36_fromBase10(zu_Base36_toBase10(digits) + step)));
    return 1;
}
