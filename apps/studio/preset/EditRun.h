#pragma once

namespace Vexlor::Studio
{

/// The number that makes the steps of one visit to a field one step: typing a word, turning a wheel.
class EditRun
{
public:
    EditRun() : m_id(Next()) {}

    int Id() const { return m_id; }
    /// The visit is over: what follows is a step of its own.
    void End() { m_id = Next(); }

private:
    static int Next()
    {
        static int s_last = 0;
        return ++s_last;
    }

    int m_id;
};

} // namespace Vexlor::Studio
