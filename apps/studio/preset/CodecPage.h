#pragma once

#include <QWidget>

#include <vector>

class QFormLayout;

namespace Vexlor::Studio
{

class AspectRow;
class CodecSession;
class CustomBitrate;
class FieldManners;
class ListRow;
struct ListFamily;

/// The page of one codec preset: its lists, each with the current entry.
class CodecPage final : public QWidget
{
    Q_OBJECT

public:
    CodecPage(CodecSession& session, FieldManners& manners, QWidget* parent = nullptr);

    /// Shows the codec preset as it is now.
    void Refresh();

private:
    void AddRow(const ListFamily& family, FieldManners& manners);
    void AddAspect(FieldManners& manners);
    void AddField(const QString& label, QWidget& field);

    CodecSession& m_session;
    QFormLayout* m_form;
    std::vector<ListRow*> m_rows;
    CustomBitrate* m_bitrate = nullptr;
    AspectRow* m_aspect = nullptr;
};

} // namespace Vexlor::Studio
