#pragma once

/// Marks a class or function as part of the logging library's binary interface.
#if defined(_WIN32)
#if defined(KOLOGGING_BUILDING)
#define KOLOGGING_API __declspec(dllexport)
#else
#define KOLOGGING_API __declspec(dllimport)
#endif
#else
#define KOLOGGING_API __attribute__((visibility("default")))
#endif
