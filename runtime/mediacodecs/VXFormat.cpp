#include "IVXFormat.h"

#include "FormatTable.h"

namespace Vexlor
{

namespace
{

class VXFormat final : public IVXFormat
{
public:
    explicit VXFormat(const FormatRow* row) : m_row(row) {}

    std::vector<int> VideoCodecIDs() const override
    {
        return m_row ? WritableCodecs(*m_row, m_row->videoCodecs) : std::vector<int>();
    }
    std::vector<int> AudioCodecIDs() const override
    {
        return m_row ? WritableCodecs(*m_row, m_row->audioCodecs) : std::vector<int>();
    }

private:
    const FormatRow* m_row;
};

} // namespace

std::shared_ptr<IVXFormat> IVXFormat::MallocFormat(const std::string& formatName,
                                                   const std::string& /*formatHint*/)
{
    return std::make_shared<VXFormat>(FindFormat(formatName));
}

} // namespace Vexlor
