#pragma once

#include <QMenu>
#include <QString>

namespace Vexlor::Studio
{

class UserSettings;

/// A menu of the files of one kind that were opened last, the newest first, kept in the settings.
class RecentFiles : public QMenu
{
    Q_OBJECT

public:
    static constexpr int kMost = 8;

    /// The settings must outlive the menu.
    RecentFiles(const QString& title, QString settingsKey, const UserSettings& settings,
                QWidget* parent = nullptr);

    /// Puts the file to the front.
    void Add(const QString& path);
    /// The files as they are in the menu.
    QStringList Paths() const;

signals:
    void Chosen(const QString& path);

private:
    void Store(const QStringList& paths);
    void Fill();

    QString m_key;
    const UserSettings& m_settings;
};

} // namespace Vexlor::Studio
