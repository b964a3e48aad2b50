#include "runtime/mediacodecs/CodecTags.h"

#include <gtest/gtest.h>

extern "C"
{
#include <libavformat/avformat.h>
#include <libavutil/macros.h>
}

namespace Vexlor
{

namespace
{

std::uint32_t TagIn(const char* muxer, std::uint32_t tag, AVCodecID codec = AV_CODEC_ID_MPEG4,
                    std::uint32_t encoders = 0)
{
    AVCodecParameters encoded{};
    encoded.codec_id = codec;
    encoded.codec_tag = encoders;
    return WritableTag(*av_guess_format(muxer, nullptr, nullptr), encoded, tag);
}

TEST(CodecTags, TagOfTheCodecIsKept)
{
    EXPECT_EQ(MKTAG('X', 'V', 'I', 'D'), TagIn("avi", MKTAG('X', 'V', 'I', 'D')));
}

TEST(CodecTags, DX50StandsInForDIV5)
{
    EXPECT_EQ(MKTAG('D', 'X', '5', '0'), TagIn("avi", MKTAG('D', 'I', 'V', '5')));
}

TEST(CodecTags, TagOfAnotherCodecIsLeftToTheMuxer) { EXPECT_EQ(0U, TagIn("avi", MKTAG('D', 'I', 'V', '3'))); }

TEST(CodecTags, NoTagIsTheMuxersChoice) { EXPECT_EQ(0U, TagIn("avi", 0)); }

// ProRes tells its profile by the tag alone; the muxer's own choice is that of HQ.
TEST(CodecTags, NoTagIsTheEncodersWhereItHasOne)
{
    constexpr std::uint32_t kStandard = MKTAG('a', 'p', 'c', 'n');
    EXPECT_EQ(kStandard, TagIn("mov", 0, AV_CODEC_ID_PRORES, kStandard));
}

TEST(CodecTags, EncodersTagThatTheMuxerDoesNotKnowIsLeftToTheMuxer)
{
    EXPECT_EQ(0U, TagIn("mov", 0, AV_CODEC_ID_PRORES, MKTAG('n', 'o', 'n', 'e')));
}

} // namespace

} // namespace Vexlor
