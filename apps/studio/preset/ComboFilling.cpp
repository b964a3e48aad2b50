#include "ComboFilling.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QSignalBlocker>

namespace Vexlor::Studio
{

namespace
{

QStringList TextsOf(const QComboBox& combo)
{
    QStringList texts;
    for (int i = 0; i < combo.count(); ++i)
        texts.append(combo.itemText(i));
    return texts;
}

QString Placeholder(int current, qsizetype count)
{
    if (count == 0)
        return QCoreApplication::translate("ComboFilling", "No entries");
    if (current < 0)
        return QCoreApplication::translate("ComboFilling", "None chosen");
    return QCoreApplication::translate("ComboFilling", "Entry %1 of %2: not there")
        .arg(current + 1)
        .arg(count);
}

} // namespace

void FillCombo(QComboBox& combo, const QStringList& texts, int current)
{
    const QSignalBlocker blocker(combo);
    if (TextsOf(combo) != texts)
    {
        combo.clear();
        combo.addItems(texts);
    }
    const bool isThere = current >= 0 && current < texts.size();
    combo.setPlaceholderText(Placeholder(current, texts.size()));
    combo.setToolTip(isThere ? QString() : combo.placeholderText());
    if (combo.currentIndex() != (isThere ? current : -1))
        combo.setCurrentIndex(isThere ? current : -1);
}

void LetShrink(QComboBox& combo)
{
    constexpr int kFewestCharacters = 8;
    combo.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo.setMinimumContentsLength(kFewestCharacters);
}

} // namespace Vexlor::Studio
