#pragma once

#include <QSortFilterProxyModel>
#include <QStringList>
#include <QTimer>

#include <unordered_set>

namespace Vexlor
{
class IVXFormatNode;
}

namespace Vexlor::Studio
{

class StudioDocument;

/// The tree narrowed to presets and categories that a text names: each of its words stands in the name, the
/// container or the path. What is found is looked for once in the whole tree, so that views may ask for rows
/// as they come to be seen.
class FormatFilterModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit FormatFilterModel(StudioDocument& document, QObject* parent = nullptr);

    /// Narrows to that text; an empty one shows everything.
    void SetText(const QString& text);
    bool IsNarrowed() const { return !m_words.isEmpty(); }
    /// How many presets are found.
    int FoundCount() const { return m_foundCount; }

signals:
    /// Before other rows are shown: those of the last search still are.
    void Searching();
    /// After what is found has changed.
    void Found();

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    void SearchSoon();
    void Search();
    bool SearchIn(IVXFormatNode& node, const QString& path);
    bool Matches(const QString& text) const;

    StudioDocument& m_document;
    QStringList m_words;
    std::unordered_set<const void*> m_found; // presets, categories that match, and all above them
    int m_foundCount = 0;
    QTimer m_timer;
};

} // namespace Vexlor::Studio
