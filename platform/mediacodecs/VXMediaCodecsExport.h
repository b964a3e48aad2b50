#pragma once

/// VX_MEDIACODECS_API marks what the codec library exports. VX_MEDIACODECS_BUILD is defined while that
/// library itself is compiled, VX_STATIC when it is linked statically.
#if defined(_WIN32) && !defined(VX_STATIC)
#ifdef VX_MEDIACODECS_BUILD
#define VX_MEDIACODECS_API __declspec(dllexport)
#else
#define VX_MEDIACODECS_API __declspec(dllimport)
#endif
#elif defined(_WIN32)
#define VX_MEDIACODECS_API
#else
#define VX_MEDIACODECS_API __attribute__((visibility("default")))
#endif
