#pragma once

#include "tests/docs/DocumentBlocks.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace Vexlor::Docs
{

/// The folder of the sources.
std::filesystem::path SourceFolder();

/// The paths of all documents, from there.
std::vector<std::string> Documents();
std::string TextOf(const std::string& document);
std::vector<DocumentBlock> BlocksOf(const std::string& document);

/// How a test of a document is called.
std::string NameOfDocument(const testing::TestParamInfo<std::string>& test);

struct Outcome
{
    int exitCode = -1;
    std::string out; ///< standard output and standard error
};

/// Runs a command line in a folder, with the tool on the path.
Outcome RunLine(const std::string& command, const std::string& folder);

} // namespace Vexlor::Docs
