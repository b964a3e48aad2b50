#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <string>

namespace Vexlor
{

/// What a fuzzer's input decides, choice by choice; behind the input's end every choice is the first.
class ChoiceReader
{
public:
    ChoiceReader(const std::uint8_t* bytes, std::size_t size) : m_rest(bytes, size) {}

    bool IsAtEnd() const { return m_rest.empty(); }

    std::uint8_t Byte()
    {
        if (m_rest.empty())
            return 0;
        const auto byte = m_rest.front();
        m_rest = m_rest.subspan(1);
        return byte;
    }

    /// One of 0 to count - 1.
    int Below(int count) { return count > 0 ? Byte() % count : 0; }

    /// A position in a list of that many, or now and then one that lies a little outside of it.
    int Position(int count) { return Below(count + 4) - 2; }

    /// Any integer: a small one, one near the ends of the range, or four bytes as they stand.
    int Integer()
    {
        constexpr int kMost = std::numeric_limits<int>::max();
        constexpr std::array kKinds{0, -1, kMost, -kMost - 1};
        const auto kind = Below(6);
        if (kind < 4)
            return static_cast<int>(static_cast<unsigned>(kKinds[static_cast<std::size_t>(kind)]) + Byte());
        if (kind == 4)
            return Byte() * 256 + Byte();
        return static_cast<int>(Bits(4));
    }

    /// An integer made of so many bytes, the lowest first.
    std::uint64_t Bits(int bytes)
    {
        std::uint64_t bits = 0;
        for (int i = 0; i < bytes; ++i)
            bits |= std::uint64_t{Byte()} << (8 * i);
        return bits;
    }

    /// The bytes up to the next of that value, which is dropped.
    std::string TextUpTo(std::uint8_t end)
    {
        std::string text;
        while (!m_rest.empty())
        {
            const auto byte = Byte();
            if (byte == end)
                break;
            text.push_back(static_cast<char>(byte));
        }
        return text;
    }

    /// All that is left.
    std::string Rest()
    {
        std::string text(m_rest.begin(), m_rest.end());
        m_rest = {};
        return text;
    }

private:
    std::span<const std::uint8_t> m_rest;
};

} // namespace Vexlor
