#pragma once

#include <QObject>
#include <QTimer>

#include <deque>
#include <functional>

namespace Vexlor
{
class IVXFormatPreset;
}

namespace Vexlor::Studio
{

class StudioDocument;

/// Has the presets that were used last outlive the program, whether the document is saved or not: they are
/// kept beside it, and brought back with it.
class RecentUse : public QObject
{
    Q_OBJECT

public:
    explicit RecentUse(StudioDocument& document, QObject* parent = nullptr);
    ~RecentUse() override;

    /// Puts the preset in front of the recently used ones, as it was when it was used, and keeps it; at once,
    /// as long as no other program is keeping something.
    void Note(const IVXFormatPreset& preset, const IVXFormatPreset& asItWas);
    /// Puts what is kept of the document in front of what it has itself.
    void BringBack();
    /// Forgets what is kept of the document, for its file has it now.
    void Forget();

signals:
    /// Something could not be kept or brought back; why.
    void Failed(const QString& reason);

private:
    void Do(std::function<void()> work);
    void DoPending();
    bool Try(const std::function<void()>& work);

    StudioDocument& m_document;
    std::deque<std::function<void()>> m_pending; // in the order in which they are to be done
    QTimer m_timer;
};

} // namespace Vexlor::Studio
