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

std::uint32_t TagIn(const char* muxer, std::uint32_t tag)
{
    return WritableTag(*av_guess_format(muxer, nullptr, nullptr), AV_CODEC_ID_MPEG4, tag);
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

} // namespace

} // namespace Vexlor
