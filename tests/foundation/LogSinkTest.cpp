#include "runtime/foundation/VXLogSink.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>

namespace Vexlor
{

namespace
{

// Takes the log as "level text" lines while it lives.
class LogSink : public testing::Test
{
protected:
    LogSink()
        : m_before(SetLogSink([this](IVXLogConfig::LogLevel level, std::string_view text)
                              { (m_text += std::to_string(level)).append(" ").append(text); }))
    {
    }
    ~LogSink() override { SetLogSink(m_before); }

    std::string m_text;

private:
    VXLogSink m_before;
};

} // namespace

TEST_F(LogSink, TakesTheFormattedText)
{
    IVXLogConfig::Printf("%s=%d\n", "index", 7);
    EXPECT_EQ("1 index=7\n", m_text);
}

TEST_F(LogSink, TakesTheLevel)
{
    IVXLogConfig::Printf(IVXLogConfig::LogLevelError, "broken");
    EXPECT_EQ("3 broken", m_text);
}

TEST_F(LogSink, PrintfAnswersTheNumberOfCharacters)
{
    EXPECT_EQ(8, IVXLogConfig::Printf("%s=%d\n", "index", 7));
    EXPECT_EQ(0, IVXLogConfig::Printf("%s", ""));
}

TEST_F(LogSink, TakesTextsOfAnyLength)
{
    for (const std::size_t size : {510U, 511U, 512U, 513U, 100000U})
    {
        m_text.clear();
        const std::string line(size, 'x');
        EXPECT_EQ(static_cast<int>(size), IVXLogConfig::Printf("%s", line.c_str()));
        EXPECT_EQ("1 " + line, m_text);
    }
}

TEST_F(LogSink, SettingAnswersTheSinkBefore)
{
    SetLogSink({})(IVXLogConfig::LogLevelWarning, "by hand");
    EXPECT_EQ("2 by hand", m_text);
}

TEST_F(LogSink, SettingAnswersAnEmptySinkForTheDefault)
{
    SetLogSink({});
    EXPECT_FALSE(SetLogSink({}));
}

TEST_F(LogSink, TheDefaultIsStandardError)
{
    SetLogSink({});
    testing::internal::CaptureStderr();
    IVXLogConfig::Printf("to stderr\n");
    EXPECT_EQ("to stderr\n", testing::internal::GetCapturedStderr());
    EXPECT_EQ("", m_text);
}

TEST_F(LogSink, ASinkMayLogItself)
{
    SetLogSink(
        [this](IVXLogConfig::LogLevel level, std::string_view text)
        {
            m_text += text;
            if (level == IVXLogConfig::LogLevelError)
                IVXLogConfig::Printf(", again");
        });
    IVXLogConfig::Printf(IVXLogConfig::LogLevelError, "once");
    EXPECT_EQ("once, again", m_text);
}

TEST_F(LogSink, MayBeReplacedWhileOthersLog)
{
    SetLogSink({[](IVXLogConfig::LogLevel, std::string_view) {}});
    std::thread other(
        []
        {
            for (int line = 0; line < 1000; ++line)
                IVXLogConfig::Printf("%d", line);
        });
    VXLogSink last;
    for (int change = 0; change < 1000; ++change)
        last = SetLogSink([](IVXLogConfig::LogLevel, std::string_view) {});
    other.join();
    EXPECT_TRUE(last);
}

} // namespace Vexlor
