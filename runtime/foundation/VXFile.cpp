#include "runtime/foundation/VXFile.h"

#include <algorithm>
#include <cerrno>
#include <string_view>

namespace Vexlor
{

namespace
{

// The system takes no more in one call.
constexpr std::size_t kMostAtOnce = std::size_t{1} << 30;

std::error_code LastFault() { return {errno, std::generic_category()}; }

} // namespace

std::filesystem::path PathOf(const std::string& utf8)
{
    const auto* first = reinterpret_cast<const char8_t*>(utf8.data());
    return {first, first + utf8.size()};
}

std::size_t VXFile::ReadAt(std::uint64_t offset, void* bytes, std::size_t size, std::error_code& fault) const
{
    std::size_t done = 0;
    while (done < size)
    {
        auto* const next = static_cast<char*>(bytes) + done;
        const auto count = ReadSome(offset + done, next, std::min(size - done, kMostAtOnce));
        if (count == 0)
            break;
        if (count > 0)
            done += static_cast<std::size_t>(count);
        else if (errno != EINTR)
        {
            fault = LastFault();
            break;
        }
    }
    return done;
}

std::error_code VXFile::WriteAt(std::uint64_t offset, const void* bytes, std::size_t size) const
{
    std::size_t done = 0;
    while (done < size)
    {
        const auto* const next = static_cast<const char*>(bytes) + done;
        const auto count = WriteSome(offset + done, next, std::min(size - done, kMostAtOnce));
        if (count > 0)
            done += static_cast<std::size_t>(count);
        else if (count == 0 || errno != EINTR)
            return count == 0 ? std::make_error_code(std::errc::io_error) : LastFault();
    }
    return {};
}

} // namespace Vexlor
