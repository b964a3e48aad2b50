#include "IVXRational.h"

#include "tests/platform/ScriptedCall.h"

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
    double GetDoubleValue() const override
    {
        if (m_den != 0)
            return static_cast<double>(m_num) / m_den;
        return m_num == 0 ? std::numeric_limits<double>::quiet_NaN()
                          : m_num * std::numeric_limits<double>::infinity();
    }
    std::string FormatAsFramerate() const override
    {
        return std::to_string(m_num) + "/" + std::to_string(m_den) + " fps";
    }
    int Num() const override { return m_num; }
    int Den() const override { return m_den; }
    std::shared_ptr<IVXRational> Clone() const override { return MallocRational(m_num, m_den); }

private:
    int m_num;
    int m_den;
};

} // namespace

std::shared_ptr<IVXRational> IVXRational::MallocRational() { return MallocRational(0, 0); }

std::shared_ptr<IVXRational> IVXRational::MallocRational(int num, int den)
{
    return std::make_shared<VXRational>(num, den);
}

std::string Text(const std::shared_ptr<const IVXRational>& rational)
{
    return rational ? std::to_string(rational->Num()) + "/" + std::to_string(rational->Den()) : "none";
}

} // namespace Vexlor
