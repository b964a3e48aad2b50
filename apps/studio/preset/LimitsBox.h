#pragma once

#include <QGroupBox>

#include <vector>

class QFormLayout;
class QSpinBox;

namespace Vexlor
{
class IVXFormatPreset;
}

namespace Vexlor::Studio
{

class FieldManners;
class MessageLine;
class NumberField;
class PresetSession;
struct Limit;
struct LimitPair;

/// The bounds of a format preset for one stream: sizes in pixels and bitrates.
class LimitsBox final : public QGroupBox
{
    Q_OBJECT

public:
    LimitsBox(PresetSession& session, bool isVideo, FieldManners& manners, QWidget* parent = nullptr);

    /// Shows the bounds as they are now.
    void Refresh();

private:
    struct Field
    {
        NumberField* field;
        int (IVXFormatPreset::*get)() const;
    };

    void AddRow(QFormLayout& form, const LimitPair& row, FieldManners& manners);
    QWidget& AddField(const LimitPair& row, const Limit& limit, FieldManners& manners);
    QSpinBox& NewBox(const LimitPair& row);
    QString Doubt() const;

    PresetSession& m_session;
    bool m_isVideo;
    std::vector<Field> m_fields;
    MessageLine* m_message;
};

} // namespace Vexlor::Studio
