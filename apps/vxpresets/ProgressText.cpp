#include "ProgressText.h"

#include "apps/host/match/SizeEstimate.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace Vexlor::Tool
{

namespace
{

void Write(const std::string& text)
{
    static_cast<void>(std::fwrite(text.data(), 1, text.size(), stdout));
    static_cast<void>(std::fflush(stdout));
}

} // namespace

std::string DurationText(double seconds)
{
    constexpr long kMinute = 60;
    const long all = std::lround(std::clamp(seconds, 0.0, 1e9));
    std::array<char, 32> text{};
    if (all < kMinute * kMinute)
        static_cast<void>(std::snprintf(text.data(), text.size(), "%ld:%02ld", all / kMinute, all % kMinute));
    else
        static_cast<void>(std::snprintf(text.data(), text.size(), "%ld:%02ld:%02ld", all / kMinute / kMinute,
                                        all / kMinute % kMinute, all % kMinute));
    return text.data();
}

std::string ProgressText(const ConversionProgress& progress)
{
    std::string text = progress.duration > 0 ? std::to_string(std::lround(progress.Share() * 100)) + " %"
                                             : DurationText(progress.done);
    if (progress.speed > 0)
    {
        std::array<char, 32> speed{};
        static_cast<void>(std::snprintf(speed.data(), speed.size(), ", %.3gx", progress.speed));
        text += speed.data();
    }
    if (progress.Left() >= 0)
        text.append(", ").append(DurationText(progress.Left())).append(" left");
    return text.append(", ").append(SizeOfBytes(double(progress.bytes)));
}

std::string ProgressBar(const ConversionProgress& progress, const Style& style)
{
    constexpr int kUsual = 80;
    constexpr int kWidest = 30;
    constexpr int kBeside = 48; // columns of the text at its widest
    const int columns = style.width > 0 ? style.width : kUsual;
    const int width = std::clamp(columns - kBeside, 0, kWidest);
    const int full = static_cast<int>(std::lround(progress.Share() * width));
    std::string bar;
    for (int i = 0; i < width; ++i)
        bar += i < full ? "█" : "░";
    return bar + (width > 0 ? " " : "") + ProgressText(progress);
}

void ProgressLines::Show(const ConversionProgress& progress)
{
    if (m_style.hasLines)
    {
        const auto line = std::string("\r").append(ProgressBar(progress, m_style)).append("\x1b[K");
        if (line != m_last)
            Write(line);
        m_last = line;
        m_isShown = true;
        return;
    }
    constexpr double kTenths = 10;
    const int tenths = static_cast<int>(progress.Share() * kTenths);
    if (tenths <= m_tenths)
        return;
    m_tenths = tenths;
    Write(ProgressText(progress) + '\n');
}

void ProgressLines::End()
{
    if (m_isShown)
        Write("\r\x1b[K");
    m_isShown = false;
}

} // namespace Vexlor::Tool
