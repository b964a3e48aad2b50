#include "NumberField.h"

#include "FieldManners.h"

#include <QSignalBlocker>
#include <QSpinBox>

#include <algorithm>
#include <utility>

namespace Vexlor::Studio
{

NumberField::NumberField(QSpinBox& box, FieldManners& manners, std::function<void(int, int)> store)
    : QObject(&box), m_box(box)
{
    manners.Teach(box);
    connect(&box, &QSpinBox::valueChanged, this,
            [this, store = std::move(store)](int number) { store(number, m_run.Id()); });
    connect(&box, &QSpinBox::editingFinished, this, [this] { m_run.End(); });
}

void NumberField::Show(int number)
{
    if (number == m_box.value())
        return;
    const QSignalBlocker blocker(m_box);
    m_box.setRange(std::min(number, m_box.minimum()), std::max(number, m_box.maximum()));
    m_box.setValue(number);
}

} // namespace Vexlor::Studio
