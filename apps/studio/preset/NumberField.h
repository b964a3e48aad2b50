#pragma once

#include "EditRun.h"

#include <QObject>

#include <functional>

class QSpinBox;

namespace Vexlor::Studio
{

class FieldManners;
class PresetSession;

/// A box and the number of the document that it edits while one types.
class NumberField final : public QObject
{
    Q_OBJECT

public:
    /// The steps are made by store, which is told the number and the run that it belongs to.
    NumberField(QSpinBox& box, FieldManners& manners, std::function<void(int number, int run)> store);

    /// Shows the number, where it is another. One that the box would not take by itself is shown all the
    /// same, as documents may hold any.
    void Show(int number);
    QSpinBox& Box() const { return m_box; }

private:
    QSpinBox& m_box;
    EditRun m_run;
};

} // namespace Vexlor::Studio
