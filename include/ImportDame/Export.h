#pragma once

/// Marks a class or function as part of the library's binary interface.
#if defined(_WIN32)
#if defined(IMPORTDAME_BUILDING)
#define IMPORTDAME_API __declspec(dllexport)
#else
#define IMPORTDAME_API __declspec(dllimport)
#endif
#else
#define IMPORTDAME_API __attribute__((visibility("default")))
#endif
