#pragma once

#include <map>
#include <string>

namespace Vexlor
{

/// What was found, how often, and the first example of each.
class Findings
{
public:
    void Add(const std::string& what, const std::string& example);
    /// "3 times: what (example)", a line each; empty when there is none.
    std::string Text() const;
    int Count() const;

private:
    struct Finding
    {
        int count = 0;
        std::string example;
    };
    std::map<std::string, Finding> m_findings;
};

} // namespace Vexlor
