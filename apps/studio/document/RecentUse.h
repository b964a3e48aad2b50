#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include <deque>
#include <functional>
#include <memory>

namespace Vexlor
{
class IVXFormatNode;
class IVXFormatPreset;
} // namespace Vexlor

namespace Vexlor::Studio
{

class StudioDocument;

/// Has the presets that were used last outlive the program, whether the document is saved or not: they are
/// kept beside it, and brought back with it.
class RecentUse : public QObject
{
    Q_OBJECT

public:
    /// A document that presets are used of.
    struct Place
    {
        std::shared_ptr<IVXFormatNode> root = {};
        QString path = {};
    };

    explicit RecentUse(StudioDocument& document, QObject* parent = nullptr);
    ~RecentUse() override;

    /// The document as it is now.
    Place Here() const;
    /// Puts the preset of that document in front of its recently used ones, as it was when it was used, and
    /// keeps it; at once, as long as no other program is keeping something. Of a document that is no longer
    /// open it is only kept.
    void Note(const Place& place, const IVXFormatPreset& preset, const IVXFormatPreset& asItWas);
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
