#include "SourceLoader.h"

#include <QMetaObject>

#include <exception>
#include <string>

namespace Vexlor::Studio
{

namespace
{

// A file that takes its time must not keep those that are asked for after it.
constexpr int kAtOnce = 4;

VXMediaFile Read(const std::string& path)
{
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

SourceLoader::SourceLoader(QObject* parent) : QObject(parent) { m_threads.setMaxThreadCount(kAtOnce); }

SourceLoader::~SourceLoader()
{
    m_threads.clear();
    m_threads.waitForDone();
}

void SourceLoader::Load(const QString& path)
{
    const int number = ++m_number;
    m_threads.clear();
    m_threads.start(
        [this, path, number]
        {
            const auto media = Read(path.toStdString());
            const auto tell = [this, path, number, media]
            {
                if (number == m_number)
                    emit Loaded(path, media);
            };
            QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
        });
}

} // namespace Vexlor::Studio
