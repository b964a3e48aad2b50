#include "Interruption.h"

#include <array>
#include <csignal>
#include <cstddef>

namespace Vexlor::Tool
{

namespace
{

// A pipe that nobody reads any more ends a conversion as the user would.
constexpr std::array kSignals{SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGPIPE};

volatile std::sig_atomic_t s_hasCome = 0;
std::array<struct sigaction, kSignals.size()> s_before{};

void Note(int /*signal*/) { s_hasCome = 1; }

} // namespace

Interruption::Interruption()
{
    s_hasCome = 0;
    struct sigaction action = {};
    action.sa_handler = Note;
    sigemptyset(&action.sa_mask);
    for (std::size_t i = 0; i < kSignals.size(); ++i)
    {
        sigaction(kSignals.at(i), &action, &s_before.at(i));
        if (s_before.at(i).sa_handler == SIG_IGN) // as nohup has it
            sigaction(kSignals.at(i), &s_before.at(i), nullptr);
    }
}

Interruption::~Interruption()
{
    for (std::size_t i = 0; i < kSignals.size(); ++i)
        sigaction(kSignals.at(i), &s_before.at(i), nullptr);
}

bool Interruption::HasCome() { return s_hasCome != 0; }

} // namespace Vexlor::Tool
