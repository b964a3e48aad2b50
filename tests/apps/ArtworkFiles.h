#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Vexlor::Apps
{

/// A number as a file holds it, lowest byte first.
std::string LittleEndian(std::uint64_t number, int bytes);

/// The smallest PNG: one pixel, 70 bytes.
std::string TinyPNG();
/// An SVG of a circle in that colour.
std::string CircleSVG(const std::string& colour);
/// A PNG of one colour.
std::string PlainPNG(int width, int height, std::uint32_t colour);

/// A picture as a group holds it.
std::string Stored(const std::string& encoded, std::uint32_t format = 1);
/// A group's bytes of pictures by their keys, with another count than there are where one is given.
std::string Group(const std::vector<std::pair<int, std::string>>& pictures, std::optional<int> count = {});

/// An entry of a file's table.
struct Entry
{
    int faceID;
    std::uint64_t offset;
    std::uint32_t size;
};

/// An artwork file, byte by byte: the table, and behind its 51,200 bytes whatever follows.
std::string File(const std::vector<Entry>& table, const std::string& groups, std::optional<int> count = {});
/// An artwork file of those groups, one right behind the other.
std::string FileOf(const std::vector<std::pair<int, std::string>>& groups);

/// Whether the file of that path holds just these bytes; if not, where they differ.
testing::AssertionResult Holds(const std::string& path, const std::string& bytes);

} // namespace Vexlor::Apps
