#include "zu_Msg.h"

#include "frame/guard.h"
#include "frame/host_services.h"
#include "frame/text.h"
#include "msg/translate.h"
#include "platform/files.h"
#include "platform/message_box.h"
#include "zu_Env.h"
#include "zu_Str.h"

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <utility>

using namespace zu;

namespace {

constexpr const zu_wchar* generalGroup = ZU_W("GENERAL");

// Once set, every text is laid out locally and the translator is never asked again.
bool isTranslatorDisabled = false;
bool isFirstRequest = true;

// Whether the configuration asks for a translator: another language than English, or English for debugging.
bool wantsTranslator()
{
    const WideString debug(text::view(zu_Env_getIni(generalGroup, ZU_W("LANGUAGE_DEBUG"))));
    if (!debug.empty() && debug != ZU_W("0"))
        return true;
    const WideView language = text::view(zu_Env_getIni(generalGroup, ZU_W("LANGUAGE")));
    return !language.empty() && !text::equalIgnoringCase(language.substr(0, 3), ZU_W("ENG"));
}

// The decision of the first request.
void decide()
{
    if (!std::exchange(isFirstRequest, false))
        return;
    if (!wantsTranslator()) {
        isTranslatorDisabled = true;
    } else if (!host::translator()) {
        isTranslatorDisabled = true;
        platform::showMessage(ZU_W("Message Translator Error"),
                              ZU_W("Unable to create an instance of the Message Translator.\nMake sure this component "
                                   "(KVApplication2.dll) is installed and registered correctly."),
                              platform::MessageIcon::exclamation);
    }
}

// A number is the entry plus one; 0 is no entry.
std::int32_t entryOf(std::int32_t n)
{
    return n == 0 || n == std::numeric_limits<std::int32_t>::min() ? n : n - 1;
}

// The translator's answer; empty when it has none or is not to be asked.
WideString answerOf(WideView text, WideView section, std::int32_t n)
{
    if (!isTranslatorDisabled)
        decide();
    if (isTranslatorDisabled)
        return WideString();
    const ComPtr<HostTranslator> translator = host::translator();
    if (!translator)
        return WideString();
    Bstr answer;
    checkComCall(translator->Translate(Bstr(text).get(), Bstr(section).get(), entryOf(n), answer.out()),
                 translator.get());
    return WideString(answer.view());
}

// Narrow text as wide text in a buffer; without memory what is not ASCII is left out.
text::Buffer<512> widened(const char* narrow)
{
    text::Buffer<512> wide;
    if (narrow == nullptr)
        return wide;
    const std::string_view bytes(narrow);
    std::size_t length = 0;
    bool plain = true;
    for (char byte : bytes) {
        plain = plain && static_cast<unsigned char>(byte) < 0x80;
        if (static_cast<unsigned char>(byte) < 0x80 && length < wide.capacity)
            wide.units[length++] = static_cast<zu_wchar>(byte);
    }
    if (!plain)
        guarded([&] { wide.set(platform::decodeText(bytes)); });
    return wide;
}

} // namespace

zu_wchar* zu::translate(WideView text, WideView section, std::int32_t n)
{
    static text::Buffer<ZU_MSG_SIZE> result;
    const WideString answer = guarded(WideString(), [&] { return answerOf(text, section, n); });
    if (!answer.empty())
        return result.set(answer);
    text::Buffer<512> local;
    local.set(text);
    return result.set(text::view(zu_Msg_format(local.units, n)));
}

zu_wchar* zu_Msg(const char* text, const char* section, int32_t n)
{
    return translate(widened(text).view(), widened(section).view(), n);
}

zu_wchar* zu_MsgDBCols(const zu_wchar* text, int32_t n)
{
    return translate(text::view(text), ZU_W("DBCols"), n);
}

zu_wchar* zu_Msg_pad(const zu_wchar* text, const zu_wchar* section, int32_t n, int32_t width)
{
    static text::Buffer<ZU_MSG_SIZE> result;
    result.set(text::view(translate(text::view(text), text::view(section), n)));
    if (width >= 1)
        zu_Str_pad(result.units, static_cast<uint32_t>(std::min(width, ZU_MSG_SIZE)));
    return result.units;
}

int32_t zu_Msg_openDb(int32_t*, const zu_wchar*)
{
    throw std::runtime_error("TODO64");
}

int32_t zu_Msg_closeDb(int32_t)
{
    throw std::runtime_error("TODO64");
}

int32_t zu_Msg_getVal(int32_t, const zu_wchar*, zu_wchar*)
{
    throw std::runtime_error("TODO64");
}
