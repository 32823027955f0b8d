// Stands for the product's help library: results that show which operation was called with which arguments.
#include "export.h"

#include <cstdint>

COMPANION_EXPORT std::intptr_t zu_Help_Initialize()
{
    return 41;
}

COMPANION_EXPORT std::intptr_t zu_Help_DisplayContext(std::intptr_t a, std::intptr_t b, std::intptr_t c,
                                                      std::uint32_t number)
{
    return a + 10 * b + 100 * c + 1000 * static_cast<std::intptr_t>(number);
}

COMPANION_EXPORT std::intptr_t zu_Help_DisplayTopic(std::intptr_t a, std::intptr_t b, std::intptr_t c)
{
    return -(a + 10 * b + 100 * c);
}
