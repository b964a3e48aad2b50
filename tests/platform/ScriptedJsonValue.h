#pragma once

#include "IVXJsonValue.h"

#include <utility>
#include <variant>

namespace Vexlor
{

/// A plain tree of values. A number is the text that a document would hold, so nothing is lost on the way.
class ScriptedJsonValue final : public IVXJsonValue
{
public:
    using Handle = std::shared_ptr<IVXJsonValue>;
    using Member = std::pair<std::string, Handle>;
    using Array = std::vector<Handle>;
    using Object = std::vector<Member>;

    struct Number
    {
        std::string literal;
    };

    using Content = std::variant<std::monostate, bool, Number, std::string, Array, Object>;

    explicit ScriptedJsonValue(Content content) : m_content(std::move(content)) {}

    const Content& Value() const { return m_content; }
    void SetMember(std::string_view name, Handle value);

    std::shared_ptr<const IVXJsonValue> operator[](std::string_view name) const override;
    bool HasKey(std::string_view name) const override { return Find(name) != nullptr; }
    std::string GetValueString(std::string_view name) const override;
    int GetValueInt(std::string_view name) const override;
    std::int64_t GetValueInt64(std::string_view name) const override;
    bool GetValueBool(std::string_view name) const override;
    std::shared_ptr<const IVXJsonValue> GetValueArray(std::string_view name) const override;
    int Size() const override;
    std::shared_ptr<const IVXJsonValue> At(int index) const override;
    void SetValueInt(std::string_view name, int value) override;
    void SetValueInt64(std::string_view name, std::int64_t value) override;
    void SetValueBool(std::string_view name, bool value) override;
    void SetValueString(std::string_view name, const std::string& value) override;
    void SetValueObject(std::string_view name, const Handle& value) override;
    void SetValueArray(std::string_view name, const std::vector<Handle>& values) override;

private:
    const Handle* Find(std::string_view name) const;

    template <class Kind>
    const Kind* FindAs(std::string_view name) const;

    Content m_content;
};

} // namespace Vexlor
