#include "IVXRational.h"

#include "DisplayNames.h"

#include <array>
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
    std::shared_ptr<IVXRational> Clone() const override { return std::make_shared<VXRational>(m_num, m_den); }

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

/// The rationals that media are full of, each made once: the invalid one, and the frame rates n/1 and
/// n * 1000/1001. They never change, so that the tens of thousands in a large document can share them.
class CommonRationals
{
public:
    CommonRationals()
    {
        for (int i = 0; i < kRates; ++i)
        {
            m_whole[static_cast<std::size_t>(i)] = std::make_shared<VXRational>(i, 1);
            m_ntsc[static_cast<std::size_t>(i)] = std::make_shared<VXRational>(i * kNtscUnit, kNtscDen);
        }
    }

    /// Null for any other rational.
    const std::shared_ptr<IVXRational>* Find(int num, int den) const
    {
        if (den == 1)
            return At(m_whole, num);
        if (den == kNtscDen && num % kNtscUnit == 0)
            return At(m_ntsc, num / kNtscUnit);
        return num == 0 && den == 0 ? &m_invalid : nullptr;
    }

private:
    static constexpr int kRates = 121; // up to 120 frames a second
    static constexpr int kNtscUnit = 1000;
    static constexpr int kNtscDen = 1001;

    using Rates = std::array<std::shared_ptr<IVXRational>, kRates>;

    static const std::shared_ptr<IVXRational>* At(const Rates& rates, int number)
    {
        return number >= 0 && number < kRates ? &rates[static_cast<std::size_t>(number)] : nullptr;
    }

    Rates m_whole;
    Rates m_ntsc;
    std::shared_ptr<IVXRational> m_invalid = std::make_shared<VXRational>(0, 0);
};

} // namespace

std::shared_ptr<IVXRational> IVXRational::MallocRational() { return MallocRational(0, 0); }

std::shared_ptr<IVXRational> IVXRational::MallocRational(int num, int den)
{
    // Never destroyed: whatever lives as long as the program may still ask for one at its end.
    static const auto& s_common = *new CommonRationals;
    const auto* const common = s_common.Find(num, den);
    return common ? *common : std::make_shared<VXRational>(num, den);
}

} // namespace Vexlor
