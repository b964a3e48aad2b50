#include "RecentFiles.h"

#include "UserSettings.h"
#include "apps/studio/ShownText.h"

#include <QDir>
#include <QFileInfo>

#include <utility>

namespace Vexlor::Studio
{

RecentFiles::RecentFiles(const QString& title, QString settingsKey, const UserSettings& settings,
                         QWidget* parent)
    : QMenu(title, parent), m_key(std::move(settingsKey)), m_settings(settings)
{
    setToolTipsVisible(true);
    Fill();
}

void RecentFiles::Add(const QString& path)
{
    auto paths = Paths();
    const auto file = QFileInfo(path).absoluteFilePath();
    paths.removeAll(file);
    paths.prepend(file);
    Store(paths.mid(0, kMost));
}

QStringList RecentFiles::Paths() const { return UserSettings::Value(m_key).toStringList(); }

void RecentFiles::Store(const QStringList& paths)
{
    m_settings.Store(m_key, paths);
    Fill();
}

void RecentFiles::Fill()
{
    clear();
    int number = 0;
    for (const auto& path : Paths())
    {
        const auto name = MenuText(QFileInfo(path).fileName());
        auto* action = addAction(QString("&%1  %2").arg(++number).arg(name));
        action->setToolTip(AsPlainText(QDir::toNativeSeparators(path)));
        action->setStatusTip(ShownText(QDir::toNativeSeparators(path).toStdString()));
        connect(action, &QAction::triggered, this, [this, path] { emit Chosen(path); });
    }
    setEnabled(number > 0);
    if (number == 0)
        return;
    addSeparator();
    connect(addAction(tr("&Clear List")), &QAction::triggered, this, [this] { Store({}); });
}

} // namespace Vexlor::Studio
