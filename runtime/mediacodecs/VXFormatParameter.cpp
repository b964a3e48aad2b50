#include "IVXFormatParameter.h"

#include <utility>

namespace Vexlor
{

namespace
{

class VXFormatParameter final : public IVXFormatParameter
{
public:
    VXFormatParameter(std::string name, std::string hint) : m_name(std::move(name)), m_hint(std::move(hint))
    {
    }

    std::string FormatName() const override { return m_name; }
    std::string FormatHint() const override { return m_hint; }

    std::shared_ptr<IVXCodecParameter> GetVideoCodecParameter() override { return m_video; }
    std::shared_ptr<const IVXCodecParameter> GetVideoCodecParameter() const override { return m_video; }
    void SetVideoCodecParameter(const std::shared_ptr<IVXCodecParameter>& parameter) override
    {
        m_video = parameter;
    }
    std::shared_ptr<IVXCodecParameter> GetAudioCodecParameter() override { return m_audio; }
    std::shared_ptr<const IVXCodecParameter> GetAudioCodecParameter() const override { return m_audio; }
    void SetAudioCodecParameter(const std::shared_ptr<IVXCodecParameter>& parameter) override
    {
        m_audio = parameter;
    }

private:
    std::string m_name;
    std::string m_hint;
    std::shared_ptr<IVXCodecParameter> m_video;
    std::shared_ptr<IVXCodecParameter> m_audio;
};

} // namespace

std::shared_ptr<IVXFormatParameter> IVXFormatParameter::MallocFormatParameter(const std::string& formatName,
                                                                              const std::string& formatHint)
{
    return std::make_shared<VXFormatParameter>(formatName, formatHint);
}

} // namespace Vexlor
