#include "tests/platform/ScriptedCodecParameter.h"

#include "IVXCodecs.h"

#include "tests/platform/ScriptedCall.h"
#include "tests/platform/ScriptedPlatform.h"

#include <typeinfo>

namespace Vexlor
{

ScriptedCodecParameter::ScriptedCodecParameter(int codecID)
    : m_codecID(codecID), m_aspectRatio(IVXRational::MallocRational(1, 1)),
      m_frameRate(IVXRational::MallocRational(0, 1))
{
}

std::string ScriptedCodecParameter::SettersText() const
{
    std::string text;
    for (const auto& setter : m_setters)
        text += setter + "\n";
    return text;
}

int ScriptedCodecParameter::GetCodecType() const
{
    const auto* platform = ScriptedPlatform::Current();
    const auto codec = platform ? platform->FindCodec(m_codecID) : nullptr;
    return codec ? codec->type : VXCodecTypeUnknown;
}

std::shared_ptr<IVXCodecs> ScriptedCodecParameter::GetCodecs(bool encoder) const
{
    return IVXCodecs::MallocCodecs(m_codecID, encoder);
}

void ScriptedCodecParameter::SetAspectRatio(const std::shared_ptr<const IVXRational>& ratio)
{
    Set("SetAspectRatio", m_aspectRatio, ratio ? ratio : m_aspectRatio);
}

void ScriptedCodecParameter::SetFramePerSecond(const std::shared_ptr<const IVXRational>& rate)
{
    Set("SetFramePerSecond", m_frameRate, rate ? rate : m_frameRate);
}

template <class Value>
void ScriptedCodecParameter::Set(const char* setter, Value& member, const Value& value)
{
    m_setters.push_back(CallText(setter, value));
    member = value;
}

template void ScriptedCodecParameter::Set(const char*, int&, const int&);
template void ScriptedCodecParameter::Set(const char*, std::uint32_t&, const std::uint32_t&);
template void ScriptedCodecParameter::Set(const char*, std::uint64_t&, const std::uint64_t&);

std::shared_ptr<ScriptedCodecParameter> MakeStream(int codecID)
{
    return std::make_shared<ScriptedCodecParameter>(codecID);
}

ScriptedCodecParameter& Scripted(const std::shared_ptr<IVXCodecParameter>& parameter)
{
    auto* scripted = dynamic_cast<ScriptedCodecParameter*>(parameter.get());
    if (!scripted)
        throw std::bad_cast();
    return *scripted;
}

std::shared_ptr<IVXCodecParameter> IVXCodecParameter::MallocCodecParamter(int codecID)
{
    ScriptedPlatform::Record(CallText("MallocCodecParamter", codecID));
    return MakeStream(codecID);
}

std::uint32_t IVXCodecParameter::MakeCodecTag(std::uint8_t first, std::uint8_t second, std::uint8_t third,
                                              std::uint8_t fourth)
{
    return first | static_cast<std::uint32_t>(second) << 8U | static_cast<std::uint32_t>(third) << 16U |
           static_cast<std::uint32_t>(fourth) << 24U;
}

} // namespace Vexlor
