#include "tests/platform/ScriptedError.h"

#include <utility>

namespace Vexlor
{

namespace
{

class VXError final : public IVXError
{
public:
    explicit VXError(std::string message) : m_message(std::move(message)) {}

    bool Succeed() const override { return m_message.empty(); }
    std::string Message() const override { return m_message; }

private:
    std::string m_message;
};

} // namespace

std::shared_ptr<IVXError> MakeError(const std::string& message) { return std::make_shared<VXError>(message); }

} // namespace Vexlor
