#pragma once

/// Marks a class or function as part of the crash-dump library's binary interface.
#if defined(_WIN32)
#if defined(KOCUSTOMCRASHHANDLING_BUILDING)
#define KOCUSTOMCRASHHANDLING_API __declspec(dllexport)
#else
#define KOCUSTOMCRASHHANDLING_API __declspec(dllimport)
#endif
#else
#define KOCUSTOMCRASHHANDLING_API __attribute__((visibility("default")))
#endif
