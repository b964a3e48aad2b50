#include "tests/foundation/TestFolder.h"

#include <fstream>
#include <iterator>
#include <random>

namespace Vexlor
{

namespace fs = std::filesystem;

TestFolder::TestFolder()
{
    std::random_device random;
    do
        m_path = fs::temp_directory_path() / ("vx-foundation-" + std::to_string(random()));
    while (!fs::create_directory(m_path));
}

TestFolder::~TestFolder()
{
    std::error_code ignored;
    fs::remove_all(m_path, ignored);
}

std::string TestFolder::operator/(std::string_view name) const
{
    return m_path.string() + '/' + std::string(name);
}

std::ptrdiff_t TestFolder::Count() const
{
    return std::distance(fs::directory_iterator(m_path), fs::directory_iterator());
}

std::string ContentOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string WithContent(const std::string& path, std::string_view text)
{
    std::ofstream(path, std::ios::binary) << text;
    return path;
}

} // namespace Vexlor
