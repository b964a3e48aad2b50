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

std::shared_ptr<IVXError> MallocSuccess() { return std::make_shared<VXError>(); }

std::shared_ptr<IVXError> MallocFailure(std::string message)
{
    return std::make_shared<VXError>(std::move(message));
}

} // namespace Vexlor
