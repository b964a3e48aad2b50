#include "runtime/foundation/VXError.h"

#include <utility>

namespace Vexlor
{

namespace
{

class VXError final : public IVXError
{
public:
    VXError() = default;
    explicit VXError(std::string message) : m_succeed(false), m_message(std::move(message)) {}

    bool Succeed() const override { return m_succeed; }
    std::string Message() const override { return m_message; }

private:
    bool m_succeed = true;
    std::string m_message;
};

} // namespace

// All successes are one object, which never changes and needs no owner.
std::shared_ptr<IVXError> MallocSuccess()
{
    static VXError s_success;
    return {std::shared_ptr<void>(), &s_success};
}

std::shared_ptr<IVXError> MallocFailure(std::string message)
{
    return std::make_shared<VXError>(std::move(message));
}

} // namespace Vexlor
