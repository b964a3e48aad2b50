#include "IVXArtworkImage.h"
#include "IVXArtworkImageGroup.h"
#include "IVXArtworkImageMgr.h"

#include <QBuffer>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <array>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace Vexlor::Bench
{

namespace
{

constexpr int kGroups = 1599;
constexpr std::array kSides{16, 32, 64};
constexpr int kModes = 4;

QByteArray Png(int side, int mode)
{
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor::fromHsv(90 * mode, 200, 220));
    painter.drawEllipse(QRect(1, 1, side - 2, side - 2));
    painter.end();
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
}

/// Three sizes for each of the four modes.
std::vector<QByteArray> TwelvePictures()
{
    std::vector<QByteArray> pictures;
    for (int mode = 0; mode < kModes; ++mode)
        for (const int side : kSides)
            pictures.push_back(Png(side, mode));
    return pictures;
}

std::shared_ptr<IVXArtworkImageGroup> TwelvePicturesGroup()
{
    auto group = IVXArtworkImageGroup::MallocArtworkImageGroup();
    int number = 0;
    for (const auto& picture : TwelvePictures())
    {
        const auto* bytes = reinterpret_cast<const std::uint8_t*>(picture.data());
        const auto size = static_cast<std::uint32_t>(picture.size());
        const auto image =
            IVXArtworkImage::MallocArtworkImage(bytes, size, IVXArtworkImage::ArtworkImageFormatPNG);
        group->SetArtworkImage(image, number % static_cast<int>(kSides.size()),
                               number / static_cast<int>(kSides.size()));
        ++number;
    }
    return group;
}

/// A file of as many groups as one can hold.
class FullFile
{
public:
    FullFile()
    {
        const auto manager = IVXArtworkImageMgr::MallocArtworkImageMgrMutable(m_path, nullptr);
        const auto group = TwelvePicturesGroup();
        for (int i = 1; i <= kGroups; ++i)
            manager->AddArtworkImageGroup(group, i);
    }

    const std::string& Path() const { return m_path; }

private:
    QTemporaryDir m_folder;
    std::string m_path = m_folder.filePath("icons").toStdString();
};

const std::string& PathOfFullFile()
{
    static const FullFile s_file;
    return s_file.Path();
}

void OpenArtwork(benchmark::State& state)
{
    const auto& path = PathOfFullFile();
    while (state.KeepRunning())
        benchmark::DoNotOptimize(IVXArtworkImageMgr::MallocArtworkImageMgr(path, nullptr));
}
BENCHMARK(OpenArtwork);

void ReadArtworkHead(benchmark::State& state)
{
    constexpr std::size_t kHead = 15 + 32 * std::size_t{kGroups};
    const auto& path = PathOfFullFile();
    while (state.KeepRunning())
    {
        const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
        std::vector<std::uint8_t> head(kHead);
        if (::read(file, head.data(), head.size()) != static_cast<ssize_t>(kHead))
            state.SkipWithError("the head is short");
        benchmark::DoNotOptimize(head.data());
        ::close(file);
    }
}
BENCHMARK(ReadArtworkHead);

void LoadLastGroup(benchmark::State& state)
{
    const auto manager = IVXArtworkImageMgr::MallocArtworkImageMgr(PathOfFullFile(), nullptr);
    while (state.KeepRunning())
        benchmark::DoNotOptimize(manager->GetArtworkImageGroupByID(kGroups));
}
BENCHMARK(LoadLastGroup);

void ReadLastBlob(benchmark::State& state)
{
    const int file = ::open(PathOfFullFile().c_str(), O_RDONLY | O_CLOEXEC);
    struct stat status = {};
    ::fstat(file, &status);
    constexpr off_t kHead = 51200;
    const auto size = static_cast<std::size_t>((status.st_size - kHead) / kGroups);
    const auto offset = static_cast<off_t>(kHead + size * (kGroups - 1));
    while (state.KeepRunning())
    {
        std::vector<std::uint8_t> blob(size);
        if (::pread(file, blob.data(), size, offset) != static_cast<ssize_t>(size))
            state.SkipWithError("the blob is short");
        const auto copy = blob;
        benchmark::DoNotOptimize(copy.data());
    }
    ::close(file);
}
BENCHMARK(ReadLastBlob);

void GroupToIcon(benchmark::State& state)
{
    const auto group = TwelvePicturesGroup();
    while (state.KeepRunning())
        benchmark::DoNotOptimize(group->ToIcon());
}
BENCHMARK(GroupToIcon);

void DecodePictures(benchmark::State& state)
{
    const auto pictures = TwelvePictures();
    while (state.KeepRunning())
        for (const auto& picture : pictures)
            benchmark::DoNotOptimize(QImage::fromData(picture));
}
BENCHMARK(DecodePictures);

} // namespace

} // namespace Vexlor::Bench
