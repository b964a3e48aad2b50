#pragma once

#include <string>

namespace Vexlor::Tool
{

/// A file in the making: it is written under another name beside it and takes its own when all is well. Until
/// then what was there stays, and nothing is left behind.
class OutputFile final
{
public:
    /// Makes the other file. Throws Failure where there is a file of that path already that is not to be
    /// overwritten, where the path names something other than a file, or it cannot be written.
    OutputFile(const std::string& path, bool overwrites);
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    /// Where to write.
    const std::string& TemporaryPath() const { return m_temporary; }
    /// Gives the file its name. Throws Failure, among others where such a file has come about meanwhile.
    void Keep();

private:
    void Link();

    std::string m_path;
    std::string m_temporary;
    bool m_overwrites;
};

/// Throws Failure where the path names a file that is there and not to be overwritten, or something other
/// than a file, or the source itself.
void CheckOutput(const std::string& path, const std::string& source, bool overwrites);

} // namespace Vexlor::Tool
