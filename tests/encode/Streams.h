#pragma once

#include "IVXCodecParameter.h"
#include "IVXRational.h"
#include "runtime/mediacodecs/ChannelLayouts.h"
#include "runtime/mediacodecs/PixelFormats.h"
#include "runtime/mediacodecs/SampleFormats.h"

#include <memory>

namespace Vexlor
{

/// 720 x 576 pixels of 8-bit 4:2:0 at 25 frames a second and 4 Mb/s.
inline std::shared_ptr<IVXCodecParameter> Picture(int codecID)
{
    auto picture = IVXCodecParameter::MallocCodecParamter(codecID);
    picture->SetWidth(720);
    picture->SetHeight(576);
    picture->SetFramePerSecond(IVXRational::MallocRational(25, 1));
    picture->SetFormat(0);
    picture->SetBitrate(4'000'000);
    return picture;
}

/// 16-bit stereo at 44.1 kHz and 192 kb/s.
inline std::shared_ptr<IVXCodecParameter> Sound(int codecID)
{
    auto sound = IVXCodecParameter::MallocCodecParamter(codecID);
    sound->SetSampleRate(44100);
    sound->SetChannelLayout(kStereo);
    sound->SetFormat(kSampleFormatS16);
    sound->SetBitrate(192'000);
    return sound;
}

} // namespace Vexlor
