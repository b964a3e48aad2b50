#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Vexlor::Tool
{

/// "key=value" of a key file.
struct KeyFileEntry
{
    std::string key;
    std::string value;
    std::size_t offset = 0; ///< of the key, in bytes
};

/// "[name]" of a key file, and what stands below it.
struct KeyFileGroup
{
    std::string name;
    std::size_t offset = 0;
    std::vector<KeyFileEntry> entries = {};

    /// The entry of that key, the last one of several; nothing where there is none.
    const KeyFileEntry* Find(std::string_view key) const;
    /// The value of that key; empty where there is none.
    std::string ValueOf(std::string_view key) const;
};

/// Reads a key file, as GLib has them: groups, keys and values, comments behind a # at a line's beginning.
/// Throws Failure, which begins with "line:column: ".
std::vector<KeyFileGroup> ReadKeyFile(std::string_view text);

} // namespace Vexlor::Tool
