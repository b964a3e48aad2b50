#include "IVXFormatParameter.h"

#include "FormatLimits.h"
#include "IVXCodecParameter.h"
#include "VXFormatParameter.h"

#include <utility>

namespace Vexlor
{

namespace
{

class VXFormatParameter final : public IVXFormatParameter
{
public:
    VXFormatParameter(std::string name, std::string hint, bool isOutput)
        : m_name(std::move(name)), m_hint(std::move(hint)), m_isOutput(isOutput)
    {
    }

    std::string FormatName() const override { return m_name; }
    std::string FormatHint() const override { return m_hint; }

    std::shared_ptr<IVXCodecParameter> GetVideoCodecParameter() override { return m_video; }
    std::shared_ptr<const IVXCodecParameter> GetVideoCodecParameter() const override { return m_video; }
    void SetVideoCodecParameter(const std::shared_ptr<IVXCodecParameter>& parameter) override
    {
        m_video = parameter;
        Fit(m_video);
    }
    std::shared_ptr<IVXCodecParameter> GetAudioCodecParameter() override { return m_audio; }
    std::shared_ptr<const IVXCodecParameter> GetAudioCodecParameter() const override { return m_audio; }
    void SetAudioCodecParameter(const std::shared_ptr<IVXCodecParameter>& parameter) override
    {
        m_audio = parameter;
        Fit(m_audio);
    }

private:
    // A source is what it is; an output is made so that the container takes it.
    void Fit(const std::shared_ptr<IVXCodecParameter>& stream) const
    {
        if (m_isOutput && stream)
            FitIntoContainer(*stream, m_name);
    }

    std::string m_name;
    std::string m_hint;
    bool m_isOutput;
    std::shared_ptr<IVXCodecParameter> m_video;
    std::shared_ptr<IVXCodecParameter> m_audio;
};

} // namespace

std::shared_ptr<IVXFormatParameter> IVXFormatParameter::MallocFormatParameter(const std::string& formatName,
                                                                              const std::string& formatHint)
{
    return std::make_shared<VXFormatParameter>(formatName, formatHint, true);
}

std::shared_ptr<IVXFormatParameter> MallocSourceParameter(const std::string& formatName)
{
    return std::make_shared<VXFormatParameter>(formatName, std::string(), false);
}

} // namespace Vexlor
