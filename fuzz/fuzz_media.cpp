#include "IVXCodecParameter.h"
#include "IVXFormatParameter.h"
#include "IVXRational.h"

#include "fuzz/Require.h"
#include "runtime/mediacodecs/VXMediaFile.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <string>

// Any bytes are read as a media file or refused with a reason, and what is read is what presets match.

namespace
{

using namespace Vexlor;

/// A file of those bytes that never sees a disk.
class MemoryFile final
{
public:
    MemoryFile(const std::uint8_t* bytes, std::size_t size) : m_file(::memfd_create("fuzz", 0))
    {
        Require(m_file >= 0 && ::write(m_file, bytes, size) == static_cast<ssize_t>(size));
    }
    ~MemoryFile() { ::close(m_file); }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    std::string Path() const { return "/proc/self/fd/" + std::to_string(m_file); }

private:
    int m_file;
};

void RequireSane(const IVXCodecParameter& stream)
{
    Require(stream.GetBitrate() >= 0);
    Require(stream.GetFrameRate()->GetDoubleValue() >= 0);
}

void RequirePicture(const IVXCodecParameter& picture)
{
    RequireSane(picture);
    Require(picture.GetWidth() > 0 && picture.GetHeight() > 0);
    Require(picture.GetDisplayWidth() > 0 && picture.GetDisplayHeight() > 0);
}

void RequireFile(const VXMediaFile& file)
{
    Require(file.error.empty());
    Require(file.duration >= 0 && file.size > 0);
    const auto picture = file.parameter->GetVideoCodecParameter();
    const auto sound = file.parameter->GetAudioCodecParameter();
    Require(picture || sound);
    Require((picture != nullptr) == !file.videoCodec.empty());
    Require((sound != nullptr) == !file.audioCodec.empty());
    if (picture)
        RequirePicture(*picture);
    if (sound)
        RequireSane(*sound);
    Require(!sound || sound->GetSampleRate() > 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const MemoryFile memory(bytes, size);
    const auto path = memory.Path();
    const auto file = ReadMediaFile(path);
    if (file.parameter)
        RequireFile(file);
    else
        Require(file.error.starts_with(path + ": ") && file.error.find('\n') == std::string::npos);
    return 0;
}
