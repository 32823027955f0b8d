#include "platform/os.h"

#include <cstdlib>
#include <cstring>
#include <string_view>

namespace zu::platform {
namespace {

struct Language
{
    std::string_view name; // as locales have it: a language, or a language and a region
    std::uint16_t identifier;
};

// A language that stands alone has the identifier of its most usual region.
constexpr Language languages[] = {
    {"ar", 0x0401},    {"bg", 0x0402},    {"ca", 0x0403},    {"cs", 0x0405}, {"da", 0x0406},    {"de", 0x0407},
    {"de_AT", 0x0C07}, {"de_CH", 0x0807}, {"el", 0x0408},    {"en", 0x0409}, {"en_AU", 0x0C09}, {"en_CA", 0x1009},
    {"en_GB", 0x0809}, {"es", 0x0C0A},    {"es_MX", 0x080A}, {"et", 0x0425}, {"fi", 0x040B},    {"fr", 0x040C},
    {"fr_BE", 0x080C}, {"fr_CA", 0x0C0C}, {"fr_CH", 0x100C}, {"he", 0x040D}, {"hr", 0x041A},    {"hu", 0x040E},
    {"it", 0x0410},    {"it_CH", 0x0810}, {"ja", 0x0411},    {"ko", 0x0412}, {"lt", 0x0427},    {"lv", 0x0426},
    {"nb", 0x0414},    {"nl", 0x0413},    {"nl_BE", 0x0813}, {"nn", 0x0814}, {"pl", 0x0415},    {"pt", 0x0816},
    {"pt_BR", 0x0416}, {"ro", 0x0418},    {"ru", 0x0419},    {"sk", 0x041B}, {"sl", 0x0424},    {"sv", 0x041D},
    {"th", 0x041E},    {"tr", 0x041F},    {"uk", 0x0422},    {"vi", 0x042A}, {"zh", 0x0804},    {"zh_TW", 0x0404},
};
constexpr std::uint16_t englishUnitedStates = 0x0409;

// The name of the locale that messages are in, without its encoding.
std::string_view messageLocale()
{
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const char* const value = std::getenv(variable);
        if (value != nullptr && value[0] != '\0')
            return std::string_view(value, std::strcspn(value, ".@"));
    }
    return {};
}

} // namespace

OsRecord operatingSystem()
{
    return OsRecord{};
}

std::uint16_t userLanguage()
{
    const std::string_view locale = messageLocale();
    for (std::string_view name : {locale, locale.substr(0, locale.find('_'))}) {
        for (const Language& language : languages) {
            if (language.name == name)
                return language.identifier;
        }
    }
    return englishUnitedStates;
}

} // namespace zu::platform
