#pragma once

/// VX_PRESETS_API marks what the preset library exports. VX_PRESETS_BUILD is defined while that
/// library itself is compiled, VX_STATIC when it is linked statically.
#if defined(_WIN32) && !defined(VX_STATIC)
#ifdef VX_PRESETS_BUILD
#define VX_PRESETS_API __declspec(dllexport)
#else
#define VX_PRESETS_API __declspec(dllimport)
#endif
#elif defined(_WIN32)
#define VX_PRESETS_API
#else
#define VX_PRESETS_API __attribute__((visibility("default")))
#endif
