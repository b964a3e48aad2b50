#pragma once

#include <QSettings>
#include <QVariant>

namespace Vexlor::Studio
{

/// What the program keeps of one session for the next.
class UserSettings
{
public:
    /// What is kept under that name; not valid where nothing is.
    static QVariant Value(const QString& key) { return QSettings().value(key); }
    /// Keeps the value under that name.
    void Store(const QString& key, const QVariant& value) const
    {
        if (!m_isFrozen)
            QSettings().setValue(key, value);
    }
    /// From now on everything stays as it is kept.
    void Freeze() { m_isFrozen = true; }

private:
    bool m_isFrozen = false;
};

} // namespace Vexlor::Studio
