#include "tests/docs/DocumentRun.h"
#include "tests/foundation/TestFolder.h"

#include <algorithm>
#include <filesystem>
#include <regex>
#include <set>
#include <sstream>

// What the documents name in passing is there: commands, options, files, presets of CMake, labels of tests.

namespace Vexlor::Docs
{

namespace
{

namespace fs = std::filesystem;

class DocumentWords : public testing::TestWithParam<std::string>
{
};

bool IsWord(const std::string& text)
{
    return std::ranges::all_of(text, [](char letter) { return letter >= 'a' && letter <= 'z'; });
}

/// What stands between ` inside the text that begins so.
std::set<std::string> InlineCode(const std::string& document, const std::string& begin)
{
    std::set<std::string> spans;
    const auto text = TextOf(document);
    for (auto at = text.find('`' + begin); at != std::string::npos; at = text.find('`' + begin, at + 1))
        spans.insert(text.substr(at + 1, text.find('`', at + 1) - at - 1));
    return spans;
}

/// A command of the tool as it is told inside the text: the words that name it, and its long options.
struct ToldCommand
{
    std::string name;
    std::vector<std::string> options = {};
};

ToldCommand ReadCommand(const std::string& code)
{
    ToldCommand command;
    bool isName = true;
    std::istringstream words(code);
    for (std::string word; words >> word;)
    {
        isName = isName && IsWord(word);
        if (isName)
            command.name += (command.name.empty() ? "" : " ") + word;
        else if (word.starts_with("--"))
            command.options.push_back(word.substr(0, word.find('=')));
    }
    return command;
}

TEST_P(DocumentWords, TellsOfCommandsAndOptionsThatAreThere)
{
    for (const auto& code : InlineCode(GetParam(), "vxpresets "))
    {
        const auto command = ReadCommand(code);
        const auto help = RunLine(command.name + " --help", SourceFolder().string());
        EXPECT_EQ(0, help.exitCode) << code;
        for (const auto& option : command.options)
            EXPECT_NE(std::string::npos, help.out.find(option)) << code;
    }
}

TEST_P(DocumentWords, TellsOfFilesThatAreThere)
{
    for (const std::string folder : {".ci/", "apps/", "bench/", "catalog/", "cmake/", "docs/", "examples/",
                                     "fuzz/", "packaging/", "platform/", "runtime/", "scripts/", "tests/"})
    {
        for (const auto& code : InlineCode(GetParam(), folder))
        {
            const auto path = code.substr(0, code.find_first_of(" \n"));
            EXPECT_TRUE(path.find('*') != std::string::npos || fs::exists(SourceFolder() / path)) << code;
        }
    }
}

/// The words that stand behind that pattern, several of them with commas and "or" in between.
std::set<std::string> WordsBehind(const std::string& document, const std::string& pattern)
{
    std::set<std::string> words;
    const auto text = TextOf(document);
    const std::regex list(pattern + "([a-z]+(?:(?:, | or )[a-z]+)*)");
    const std::regex word("[a-z]+");
    for (std::sregex_iterator at(text.begin(), text.end(), list), end; at != end; ++at)
    {
        const std::string found = (*at)[1];
        for (std::sregex_iterator each(found.begin(), found.end(), word); each != end; ++each)
            words.insert(each->str());
    }
    words.erase("or");
    return words;
}

TEST_P(DocumentWords, TellsOfPresetsOfCMakeThatAreThere)
{
    const auto presets = TextOf("CMakePresets.json");
    for (const auto& name : WordsBehind(GetParam(), "(?:cmake|cmake --build|ctest) --preset "))
        EXPECT_NE(std::string::npos, presets.find("\"name\": \"" + name + '"')) << name;
}

TEST_P(DocumentWords, TellsOfLabelsOfTestsThatAreThere)
{
    std::string lists;
    for (const std::string folder : {"tests", "fuzz"})
        for (const auto& entry : fs::recursive_directory_iterator(SourceFolder() / folder))
            if (entry.path().filename() == "CMakeLists.txt")
                lists += ContentOf(entry.path().string());
    for (const auto& label : WordsBehind(GetParam(), "-L "))
        EXPECT_TRUE(std::regex_search(lists, std::regex("LABELS? " + label + "\\b"))) << label;
}

INSTANTIATE_TEST_SUITE_P(All, DocumentWords, testing::ValuesIn(Documents()), NameOfDocument);

#ifdef VX_STUDIO
// In the page of the window program every option that stands alone is one of its own.
TEST(Documents, TellOfOptionsOfTheWindowProgramThatAreThere)
{
    const auto help = RunLine("QT_QPA_PLATFORM=offscreen '" VX_STUDIO "' --help", SourceFolder().string());
    ASSERT_EQ(0, help.exitCode) << help.out;
    for (const auto& code : InlineCode("docs/studio.md", "--"))
        EXPECT_NE(std::string::npos, help.out.find(code.substr(0, code.find_first_of(" =")))) << code;
}
#endif

TEST(Documents, HaveCommandsReadWithTheirOptions)
{
    const auto command = ReadCommand("vxpresets match MEDIA --preset PRESET --target=25MB");
    EXPECT_EQ("vxpresets match", command.name);
    EXPECT_EQ((std::vector<std::string>{"--preset", "--target"}), command.options);
}

} // namespace

} // namespace Vexlor::Docs
