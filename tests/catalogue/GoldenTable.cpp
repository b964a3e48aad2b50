// Writes what every preset of the default tree makes of forty sources, a file a category:   catalogue_golden
// FOLDER

#include "IVXFormatParameter.h"
#include "IVXFormatPreset.h"
#include "PresetPaths.h"
#include "Sources.h"
#include "StreamLine.h"

#include <cstdio>
#include <fstream>
#include <map>
#include <string>

namespace
{

std::string FileNameOf(const std::string& category)
{
    std::string name;
    for (const char c : category)
        name += c == ' ' ? '-' : static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
    return name + ".txt";
}

std::string Padded(std::string text)
{
    constexpr std::size_t kWidth = 16;
    text.resize(std::max(kWidth, text.size() + 1), ' ');
    return text;
}

std::string SourceTable()
{
    std::string text;
    for (const auto& source : Vexlor::Sources())
        text += Padded(std::string(source.name)) + Vexlor::OutlineOf(source) + '\n';
    return text;
}

std::string TableOf(const Vexlor::PlacedPreset& placed)
{
    auto text = "\n" + placed.path + " (" + placed.preset->FormatName() + ")\n";
    for (const auto& source : Vexlor::Sources())
        text += Padded(std::string(source.name)) +
                LineOf(*placed.preset->MatchForSource(ParameterOf(source))) + '\n';
    return text;
}

bool Write(const std::string& path, const std::string& text)
{
    std::ofstream file(path, std::ios::binary);
    file << text;
    return file.flush().good();
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    std::map<std::string, std::string> files{{"sources.txt", SourceTable()}};
    for (const auto& placed : Vexlor::DefaultPresets())
        files[FileNameOf(placed.category)] += TableOf(placed);
    for (const auto& [name, text] : files)
        if (!Write(std::string(argv[1]) + '/' + name, text))
        {
            std::fprintf(stderr, "%s/%s: cannot be written\n", argv[1], name.c_str());
            return 1;
        }
    return 0;
}
