#pragma once

#include <QWidget>

namespace Vexlor::Studio
{

class CodecSession;
class FieldManners;
class NumberField;

/// The bitrate of the user's own that a codec preset's quality may be. Documents have no place for it, which
/// is told, and limits that leave no room come to the same.
class CustomBitrate final : public QWidget
{
    Q_OBJECT

public:
    CustomBitrate(CodecSession& session, FieldManners& manners, QWidget* parent = nullptr);

    /// Shows the bitrate as it is now; nothing where the quality is none of one's own.
    void Refresh();

private:
    void Store(int bitrate, int run);
    void KeepAsLimits();

    CodecSession& m_session;
    NumberField* m_bitrate;
};

} // namespace Vexlor::Studio
