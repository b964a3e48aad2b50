#include "runtime/mediacodecs/VXMediaFile.h"

#include "tests/media/MediaMaker.h"

#include <gtest/gtest.h>

extern "C"
{
#include <libavutil/log.h>
}

#include <array>
#include <thread>

namespace Vexlor
{

namespace
{

// A file that FFmpeg has much to say about.
std::string DamagedClip()
{
    auto bytes = Media::BytesOf(Media::Clip("film.mkv"));
    for (std::size_t i = 3000; i < bytes.size(); i += 100)
        bytes[i] = '\xFF';
    return bytes;
}

int g_linesOfHost = 0;

void HostLog(void*, int, const char*, va_list) { ++g_linesOfHost; }

class MediaFileQuiet : public testing::Test
{
protected:
    ~MediaFileQuiet() override
    {
        av_log_set_callback(av_log_default_callback);
        av_log_set_level(AV_LOG_INFO);
    }

    Media::ScratchFolder m_scratch;
    std::string m_clip = m_scratch.Write("damaged.mkv", DamagedClip());
};

TEST_F(MediaFileQuiet, WritesNothingToStderr)
{
    testing::internal::CaptureStderr();
    static_cast<void>(ReadMediaFile(m_clip));
    EXPECT_EQ("", testing::internal::GetCapturedStderr());
}

TEST_F(MediaFileQuiet, GivesTheLevelBack)
{
    av_log_set_level(AV_LOG_WARNING);
    static_cast<void>(ReadMediaFile(m_clip));
    EXPECT_EQ(AV_LOG_WARNING, av_log_get_level());
}

TEST_F(MediaFileQuiet, GivesTheLevelBackAfterReadersInSeveralThreads)
{
    av_log_set_level(AV_LOG_WARNING);
    std::array<std::thread, 4> readers;
    for (auto& reader : readers)
        reader = std::thread([this] { static_cast<void>(ReadMediaFile(m_clip)); });
    for (auto& reader : readers)
        reader.join();
    EXPECT_EQ(AV_LOG_WARNING, av_log_get_level());
}

TEST_F(MediaFileQuiet, LeavesTheLogFunctionOfAHostInPlace)
{
    g_linesOfHost = 0;
    av_log_set_callback(HostLog);
    static_cast<void>(ReadMediaFile(m_clip));
    EXPECT_GT(g_linesOfHost, 0);
}

} // namespace

} // namespace Vexlor
