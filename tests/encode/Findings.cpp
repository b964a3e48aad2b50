#include "tests/encode/Findings.h"

namespace Vexlor
{

void Findings::Add(const std::string& what, const std::string& example)
{
    auto& finding = m_findings[what];
    if (finding.count++ == 0)
        finding.example = example;
}

std::string Findings::Text() const
{
    std::string text;
    for (const auto& [what, finding] : m_findings)
        text += std::to_string(finding.count) + " times: " + what + " (" + finding.example + ")\n";
    return text;
}

int Findings::Count() const
{
    int count = 0;
    for (const auto& each : m_findings)
        count += each.second.count;
    return count;
}

} // namespace Vexlor
