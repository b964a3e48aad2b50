#include "tests/media/MediaMaker.h"

#include "tests/media/ClipRecipes.h"
#include "tests/media/Ffmpeg.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <stdexcept>

namespace Vexlor::Media
{

namespace
{

namespace fs = std::filesystem;

void WriteBytes(const fs::path& path, std::string_view bytes)
{
    std::ofstream file(path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!file.flush())
        throw std::runtime_error(path.string() + ": cannot be written");
}

// A recipe that changes gets another folder, so no clip is ever stale.
fs::path FolderOf(const ClipRecipe& recipe)
{
    const auto number = std::hash<std::string>{}(ArgumentsOf(recipe));
    return fs::path(VX_CLIP_FOLDER) / std::to_string(number);
}

void Make(const ClipRecipe& recipe, const fs::path& clip)
{
    // Another program may be making the same clip: whole files only get the clip's name.
    const auto making = clip.parent_path() / (std::to_string(::getpid()) + '-' + std::string(recipe.name));
    RunFfmpeg(ArgumentsOf(recipe), making.string());
    if (recipe.finish)
    {
        auto bytes = BytesOf(making.string());
        recipe.finish(bytes);
        WriteBytes(making, bytes);
    }
    fs::rename(making, clip);
}

} // namespace

std::string Clip(std::string_view name)
{
    const auto& recipe = FindRecipe(name);
    const auto clip = FolderOf(recipe) / recipe.name;
    fs::create_directories(clip.parent_path());
    if (!fs::exists(clip))
        Make(recipe, clip);
    return clip.string();
}

ScratchFolder::ScratchFolder()
{
    fs::create_directories(VX_CLIP_FOLDER);
    m_path = std::string(VX_CLIP_FOLDER) + "/scratch-XXXXXX";
    if (!::mkdtemp(m_path.data()))
        throw std::runtime_error(m_path + ": cannot be made");
}

ScratchFolder::~ScratchFolder()
{
    std::error_code ignored;
    fs::remove_all(m_path, ignored);
}

std::string ScratchFolder::Path(std::string_view name) const { return m_path + '/' + std::string(name); }

std::string ScratchFolder::Write(std::string_view name, std::string_view bytes) const
{
    WriteBytes(Path(name), bytes);
    return Path(name);
}

std::string BytesOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw std::runtime_error(path + ": cannot be read");
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace Vexlor::Media
