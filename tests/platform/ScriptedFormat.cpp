#include "IVXFormat.h"

#include "tests/platform/ScriptedCall.h"
#include "tests/platform/ScriptedPlatform.h"

namespace Vexlor
{

namespace
{

class VXFormat final : public IVXFormat
{
public:
    explicit VXFormat(ScriptedFormat format) : m_format(std::move(format)) {}

    std::vector<int> VideoCodecIDs() const override { return m_format.videoCodecIDs; }
    std::vector<int> AudioCodecIDs() const override { return m_format.audioCodecIDs; }

private:
    ScriptedFormat m_format;
};

} // namespace

std::shared_ptr<IVXFormat> IVXFormat::MallocFormat(const std::string& formatName,
                                                   const std::string& formatHint)
{
    ScriptedPlatform::Record(CallText("MallocFormat", formatName, formatHint));
    const auto* platform = ScriptedPlatform::Current();
    const auto* format = platform ? platform->FindFormat(formatName) : nullptr;
    if (format && !format->made)
        return nullptr;
    return std::make_shared<VXFormat>(format ? *format : ScriptedFormat());
}

} // namespace Vexlor
