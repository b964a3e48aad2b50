#include "runtime/mediacodecs/VXMediaFile.h"

#include "IVXCodecParameter.h"
#include "IVXFormatParameter.h"
#include "IVXRational.h"
#include "tests/media/MediaMaker.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace Vexlor
{

namespace
{

constexpr int kMutations = 300;

class Mutator final
{
public:
    explicit Mutator(std::string bytes) : m_bytes(std::move(bytes)) {}

    std::string Next()
    {
        auto bytes = m_bytes;
        switch (Below(4))
        {
        case 0:
            bytes.resize(Below(bytes.size()));
            break;
        case 1:
            std::fill_n(bytes.begin() + Place(), 8, '\xFF');
            break;
        case 2:
            std::fill_n(bytes.begin() + Place(), 8, '\0');
            break;
        default:
            for (int i = 0; i < 8; ++i)
                bytes[static_cast<std::size_t>(Place())] = static_cast<char>(Below(256));
        }
        return bytes;
    }

private:
    std::size_t Below(std::size_t bound) { return m_random() % bound; }

    // Mostly in the file's description, which stands first.
    std::ptrdiff_t Place()
    {
        const auto whole = m_bytes.size() - 8;
        return static_cast<std::ptrdiff_t>(Below(Below(4) > 0 ? std::min<std::size_t>(whole, 1500) : whole));
    }

    std::string m_bytes;
    std::mt19937 m_random{20240229};
};

bool IsSane(const IVXCodecParameter& video)
{
    return video.GetWidth() > 0 && video.GetHeight() > 0 && video.GetDisplayWidth() > 0 &&
           video.GetDisplayHeight() > 0 && video.GetFrameRate()->GetDoubleValue() >= 0 &&
           video.GetBitrate() >= 0;
}

// A file is either refused or read, and then it has a stream, and every stream what a preset matches.
bool IsSane(const VXMediaFile& file)
{
    if (!file.parameter)
        return !file.error.empty();
    const auto video = file.parameter->GetVideoCodecParameter();
    const auto audio = file.parameter->GetAudioCodecParameter();
    return file.error.empty() && (video || audio) && (!video || IsSane(*video)) &&
           (!audio || audio->GetSampleRate() > 0);
}

class MediaFileMutation : public testing::TestWithParam<const char*>
{
};

TEST_P(MediaFileMutation, ReadsSanelyOrIsRefused)
{
    const Media::ScratchFolder scratch;
    Mutator mutator(Media::BytesOf(Media::Clip(GetParam())));
    for (int i = 0; i < kMutations; ++i)
    {
        const auto file = ReadMediaFile(scratch.Write("clip", mutator.Next()));
        ASSERT_TRUE(IsSane(file)) << "mutation " << i << ": " << file.error;
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, MediaFileMutation, testing::Values("streamed.mp4", "film.webm", "film.ts"),
                         [](const auto& test)
                         {
                             std::string name = test.param;
                             std::ranges::replace(name, '.', '_');
                             return name;
                         });

} // namespace

} // namespace Vexlor
