#include "IVXFormatPreset.h"

#include <cstdio>

// A host of another platform: all that it includes are the library's headers.
int main(int argc, char** argv)
{
    const auto preset = Vexlor::IVXFormatPreset::MallocFormatPreset("MP4", "");
    std::printf("%s: %d video codecs\n", argv[argc - 1], preset->VideoCodecPresetCount());
    return preset->VideoCodecPresetCount() > 1 ? 0 : 1;
}
