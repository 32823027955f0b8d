// Marks what a companion library exports.
#pragma once

#if defined(_WIN32)
#    define COMPANION_EXPORT extern "C" __declspec(dllexport)
#else
#    define COMPANION_EXPORT extern "C" __attribute__((visibility("default")))
#endif
