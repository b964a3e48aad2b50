#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace Vexlor
{

/// Reads little-endian numbers off bytes. Every read can fail, and nothing is read outside them.
class VXByteReader
{
public:
    explicit VXByteReader(std::span<const std::uint8_t> bytes) : m_rest(bytes) {}

    std::size_t Rest() const { return m_rest.size(); }

    /// The next count bytes, or nothing when fewer are left.
    std::optional<std::span<const std::uint8_t>> Bytes(std::size_t count)
    {
        if (count > m_rest.size())
            return {};
        const auto taken = m_rest.first(count);
        m_rest = m_rest.subspan(count);
        return taken;
    }

    /// The next number, or nothing when too few bytes are left.
    template <std::unsigned_integral Number>
    std::optional<Number> Next()
    {
        const auto bytes = Bytes(sizeof(Number));
        if (!bytes)
            return {};
        Number number = 0;
        for (std::size_t i = 0; i < sizeof(Number); ++i)
            number = static_cast<Number>(number | static_cast<Number>((*bytes)[i]) << (8 * i));
        return number;
    }

private:
    std::span<const std::uint8_t> m_rest;
};

/// Writes a number little-endian to where to points, and answers where it ends.
template <std::unsigned_integral Number>
std::uint8_t* PutLittleEndian(std::uint8_t* to, Number number)
{
    for (std::size_t i = 0; i < sizeof(Number); ++i)
        *to++ = static_cast<std::uint8_t>(number >> (8 * i));
    return to;
}

} // namespace Vexlor
