#pragma once

/// VX_FOUNDATION_API marks what the foundation library exports. VX_FOUNDATION_BUILD is defined while that
/// library itself is compiled, VX_STATIC when it is linked statically.
#if defined(_WIN32) && !defined(VX_STATIC)
#ifdef VX_FOUNDATION_BUILD
#define VX_FOUNDATION_API __declspec(dllexport)
#else
#define VX_FOUNDATION_API __declspec(dllimport)
#endif
#elif defined(_WIN32)
#define VX_FOUNDATION_API
#else
#define VX_FOUNDATION_API __attribute__((visibility("default")))
#endif
