#include "IVXCodecParameter.h"
#include "IVXFormatParameter.h"
#include "IVXFormatPreset.h"
#include "runtime/mediacodecs/VXMediaFile.h"

#include <cstdio>

int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    const auto file = Vexlor::ReadMediaFile(argv[1]);
    if (!file.parameter)
    {
        std::fprintf(stderr, "%s\n", file.error.c_str());
        return 1;
    }
    const auto preset = Vexlor::IVXFormatPreset::MallocFormatPreset("MP4", "");
    const auto output = preset->MatchForSource(file.parameter);
    if (const auto video = output->GetVideoCodecParameter())
        std::printf("%d x %d at %d b/s\n", video->GetWidth(), video->GetHeight(), video->GetBitrate());
    return 0;
}
