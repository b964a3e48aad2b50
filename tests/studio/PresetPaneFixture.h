#pragma once

#include "apps/studio/document/StudioDocument.h"
#include "apps/studio/preset/PresetPane.h"

#include "IVXCodecPreset.h"
#include "IVXFormatPreset.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace Vexlor::Studio
{

/// A pane that shows a preset of MP4 whose current codecs are H.264 and AAC, driven as by a user.
class PresetPaneTest : public testing::Test
{
protected:
    PresetPaneTest()
    {
        preset->SetName("Phone");
        preset->SetIndexForVideoCodecPresets(1);
        preset->SetIndexForAudioCodecPresets(1);
        pane.resize(700, 900);
        pane.ShowItem({{}, preset});
        pane.show();
        QApplication::setActiveWindow(&pane);
        QCoreApplication::processEvents();
    }

    std::shared_ptr<IVXCodecPreset> Video() const { return preset->VideoCodecPreset(1); }

    /// The page of pictures or of sound.
    QWidget& Page(int tab)
    {
        auto& tabs = *pane.findChild<QTabWidget*>("streams");
        tabs.setCurrentIndex(tab);
        return *tabs.widget(tab);
    }
    QWidget& Row(const char* noun, int tab = 0) { return *Page(tab).findChild<QWidget*>(noun); }
    QComboBox& Combo(const char* noun, int tab = 0) { return *Row(noun, tab).findChild<QComboBox*>(); }
    QSpinBox& Number(const char* noun, int tab = 0) { return *Page(tab).findChild<QSpinBox*>(noun); }
    /// The list of codecs.
    QListWidget& Codecs(int tab = 0)
    {
        for (auto* list : Page(tab).findChildren<QListWidget*>())
            if (list->accessibleName().contains("codec"))
                return *list;
        throw std::logic_error("no list of codecs");
    }
    QAbstractButton& Button(const QWidget& parent, const char* name)
    {
        return *parent.findChild<QAbstractButton*>(name);
    }
    /// The editor of the entries of that list, opened.
    QListWidget& Entries(const char* noun, int tab = 0)
    {
        auto& edit = Button(Row(noun, tab), "edit");
        if (!edit.isChecked())
            edit.click();
        return *Row(noun, tab).findChild<QListWidget*>();
    }
    QLineEdit& Input(const char* noun)
    {
        Entries(noun);
        return *Row(noun).findChild<QLineEdit*>("input");
    }
    /// All that the widget's messages say.
    static QString Messages(const QWidget& widget)
    {
        QString text;
        for (const auto* label : widget.findChildren<QLabel*>())
            if (label->isVisible() && label->wordWrap())
                text += label->text();
        return text;
    }
    /// Opens the box and takes the first entry that begins so.
    static void Pick(QComboBox& combo, const QString& text)
    {
        const int index = combo.findText(text, Qt::MatchStartsWith);
        ASSERT_GE(index, 0) << text.toStdString();
        combo.showPopup();
        combo.view()->setCurrentIndex(combo.model()->index(index, 0));
        QTest::keyClick(combo.view(), Qt::Key_Return);
    }
    static void Type(QWidget& field, const QString& text)
    {
        field.setFocus();
        QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&field, text);
    }
    static QStringList Texts(const QListWidget& list)
    {
        QStringList texts;
        for (int row = 0; row < list.count(); ++row)
            texts.append(list.item(row)->text());
        return texts;
    }
    /// Number of the marked row; -1 for none.
    static int Marked(const QListWidget& list)
    {
        for (int row = 0; row < list.count(); ++row)
            if (list.item(row)->checkState() == Qt::Checked)
                return row;
        return -1;
    }

    StudioDocument document;
    std::shared_ptr<IVXFormatPreset> preset = IVXFormatPreset::MallocFormatPreset("MP4", "");
    PresetPane pane{document};
};

} // namespace Vexlor::Studio
