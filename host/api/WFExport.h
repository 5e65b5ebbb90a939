#pragma once

/// Marks what WF30CoreAPI exports: the contract packages and hosts program against. The
/// library is built with hidden visibility, so everything unmarked stays internal.
#if defined(WF30COREAPI_STATIC)
#define WF_API
#elif defined(_WIN32)
#if defined(WF30COREAPI_BUILDING)
#define WF_API __declspec(dllexport)
#else
#define WF_API __declspec(dllimport)
#endif
#else
#define WF_API __attribute__((visibility("default")))
#endif
