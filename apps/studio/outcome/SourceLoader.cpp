#include "SourceLoader.h"

#include <exception>
#include <string>

namespace Vexlor::Studio
{

namespace
{

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

SourceLoader::SourceLoader(QObject* parent) : QObject(parent), m_reader(&Read) {}

void SourceLoader::Load(const QString& path)
{
    m_isLoading = true;
    m_work.Start<VXMediaFile>([path, reader = m_reader] { return reader(path); },
                              [this, path](const auto& result) { Tell(path, result); });
}

void SourceLoader::GiveUp()
{
    m_isLoading = false;
    m_work.Abandon();
}

void SourceLoader::Tell(const QString& path, const AsideResult<VXMediaFile>& result)
{
    m_isLoading = false;
    VXMediaFile media;
    media.error = result.error.toStdString();
    emit Loaded(path, result.value.value_or(media));
}

} // namespace Vexlor::Studio
