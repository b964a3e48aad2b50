#pragma once

#include <QWidget>

class QMenu;

namespace Vexlor::Studio
{

class CodecSession;
class EntryListBox;

/// The codec presets of one stream: which there are, which is the current one, and whose page is open.
class CodecList final : public QWidget
{
    Q_OBJECT

public:
    explicit CodecList(CodecSession& session, QWidget* parent = nullptr);

    /// Shows the codec presets as they are now, and tells the session whose page is open.
    void Refresh();
    /// Opens the page of the current codec preset.
    void OpenCurrent();

signals:
    /// Another page is open.
    void Opened();

private:
    void SetUpAdding();
    void OfferCodecs();
    void Open(int row);
    void Add(int codecID, const QString& name);
    void Choose(int row);
    void Remove(int row);
    void Move(int row, int by);
    QString TextAt(int row) const;

    CodecSession& m_session;
    QString m_noun;
    EntryListBox* m_entries;
    QMenu* m_codecs;
};

} // namespace Vexlor::Studio
