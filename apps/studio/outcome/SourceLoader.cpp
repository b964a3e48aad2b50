#include "SourceLoader.h"

#include <exception>
#include <string>

namespace Vexlor::Studio
{

namespace
{

// A file that takes its time must not keep those that are asked for after it.
constexpr int kAtOnce = 4;

VXMediaFile Read(const QString& file)
{
    const auto path = file.toStdString();
    try
    {
        return ReadMediaFile(path);
    }
    catch (const std::exception& exception) // memory that is not to be had
    {
        VXMediaFile media;
        media.error = path + ": " + exception.what();
        return media;
    }
}

} // namespace

// What is emitted beside the user's thread arrives in it.
SourceLoader::SourceLoader(QObject* parent) : QObject(parent), m_reader(&Read)
{
    m_threads.setMaxThreadCount(kAtOnce);
    connect(this, &SourceLoader::HasRead, this, &SourceLoader::Tell);
}

SourceLoader::~SourceLoader()
{
    m_threads.clear();
    m_threads.waitForDone();
}

void SourceLoader::Load(const QString& path)
{
    const int number = ++m_number;
    m_threads.clear();
    m_threads.start([this, path, number, reader = m_reader]
                    { emit HasRead(number, path, reader(path), {}); });
}

void SourceLoader::Tell(int number, const QString& path, const VXMediaFile& media)
{
    if (number != m_number)
        return;
    m_told = number;
    emit Loaded(path, media);
}

} // namespace Vexlor::Studio
