#include "IVXRational.h"

#include "DisplayNames.h"

#include <limits>

namespace Vexlor
{

namespace
{

class VXRational final : public IVXRational
{
public:
    VXRational(int num, int den) : m_num(num), m_den(den) {}

    bool IsValid() const override { return m_den != 0; }
    double GetDoubleValue() const override;
    std::string FormatAsFramerate() const override;
    int Num() const override { return m_num; }
    int Den() const override { return m_den; }
    std::shared_ptr<IVXRational> Clone() const override { return MallocRational(m_num, m_den); }

private:
    int m_num;
    int m_den;
};

double VXRational::GetDoubleValue() const
{
    using Limits = std::numeric_limits<double>;
    if (m_den != 0)
        return static_cast<double>(m_num) / m_den;
    if (m_num == 0)
        return Limits::quiet_NaN();
    return m_num > 0 ? Limits::infinity() : -Limits::infinity();
}

std::string VXRational::FormatAsFramerate() const
{
    const auto rate = GetDoubleValue();
    if (!IsValid() || rate <= 0)
        return {};
    // Two decimals tell all coded rates apart but 23.976, which nobody writes as 23.98.
    return FormatDecimal(rate, rate > 23.97 && rate < 23.98 ? 3 : 2) + " fps";
}

} // namespace

std::shared_ptr<IVXRational> IVXRational::MallocRational() { return MallocRational(0, 0); }

std::shared_ptr<IVXRational> IVXRational::MallocRational(int num, int den)
{
    return std::make_shared<VXRational>(num, den);
}

} // namespace Vexlor
