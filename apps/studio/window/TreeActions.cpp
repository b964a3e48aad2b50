#include "TreeActions.h"

#include "apps/studio/document/RecentPresets.h"
#include "apps/studio/document/StudioDocument.h"
#include "apps/studio/tree/TreeMime.h"
#include "apps/studio/tree/TreePane.h"

#include "IVXFormatNode.h"
#include "VXMediaCodecs.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QTreeView>

#include <algorithm>

namespace Vexlor::Studio
{

TreeActions::TreeActions(StudioDocument& document, TreePane& pane, QObject* parent)
    : QObject(parent), m_document(document), m_pane(pane), m_editor(document),
      m_newPreset(new QMenu(tr("New &Preset"), &pane)),
      m_cut(Add(tr("Cu&t"), QKeySequence::Cut, &TreeActions::Cut)),
      m_copy(Add(tr("&Copy"), QKeySequence::Copy, &TreeActions::Copy)),
      m_paste(Add(tr("&Paste"), QKeySequence::Paste, &TreeActions::Paste)),
      m_delete(Add(tr("&Delete"), QKeySequence::Delete, &TreeActions::Delete)),
      m_rename(Add(tr("&Rename"), Qt::Key_F2, &TreeActions::Rename)),
      m_clone(Add(tr("C&lone into Customised"), Qt::CTRL | Qt::Key_D, &TreeActions::Clone)),
      m_up(Add(tr("M&ove Up"), Qt::ALT | Qt::Key_Up, &TreeActions::MoveUp)),
      m_down(Add(tr("Move Do&wn"), Qt::ALT | Qt::Key_Down, &TreeActions::MoveDown)),
      m_newCategory(Add(tr("New C&ategory"), Qt::CTRL | Qt::SHIFT | Qt::Key_N, &TreeActions::NewCategory))
{
    MakeNewMenu();
    m_needSelection = {m_cut, m_copy, m_delete, m_rename, m_clone, m_up, m_down};
    auto& view = m_pane.View();
    view.addActions({m_rename, m_clone, m_cut, m_copy, m_paste, m_delete, m_up, m_down,
                     m_newPreset->menuAction(), m_newCategory});
    connect(&pane, &TreePane::SelectionChanged, this, &TreeActions::ShowPossible);
    ShowPossible();
}

QAction* TreeActions::Add(const QString& text, const QKeySequence& shortcut, Deed deed)
{
    auto* action = new QAction(text, this);
    action->setShortcut(shortcut);
    // Text fields have uses of their own for some of these keys.
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(action, &QAction::triggered, this, deed);
    return action;
}

void TreeActions::MakeNewMenu()
{
    for (const auto& name : VXMediaCodecSupportOutputAllMediaFormats())
    {
        const auto container = QString::fromStdString(name);
        connect(m_newPreset->addAction(container), &QAction::triggered, this,
                [this, container]
                {
                    const auto place = m_pane.CurrentCategory();
                    if (const auto item = m_editor.AddPreset(place, container))
                        ShowNew({item}, place);
                });
    }
}

void TreeActions::AddTo(QMenu& edit) const
{
    edit.addActions({m_cut, m_copy, m_paste, m_delete});
    edit.addSeparator();
    edit.addActions({m_rename, m_up, m_down});
}

void TreeActions::AddPresetActionsTo(QMenu& presets) const
{
    presets.addMenu(m_newPreset);
    presets.addActions({m_newCategory, m_clone});
}

void TreeActions::ShowPossible()
{
    const bool isSelected = m_pane.View().selectionModel()->hasSelection();
    for (auto* action : m_needSelection)
        action->setEnabled(isSelected);
}

void TreeActions::Cut()
{
    Copy();
    Delete();
}

// What is pasted is what was copied, whatever becomes of it until then.
void TreeActions::Copy()
{
    auto items = m_pane.Selected();
    if (items.empty())
        return;
    std::ranges::transform(items, items.begin(), CopyOf);
    QGuiApplication::clipboard()->setMimeData(new TreeMime(std::move(items)));
}

void TreeActions::Paste()
{
    const auto* data = QGuiApplication::clipboard()->mimeData();
    if (data == nullptr || !data->hasFormat(kTreeMimeType))
        return;
    DropPlace place{m_pane.CurrentCategory()};
    const auto current = m_pane.Current();
    if (current.IsPreset())
        place.presetIndex = IndexOf(*place.parent, current) + 1;
    ShowNew(m_editor.Copy(ItemsIn(*data), place), place.parent);
}

void TreeActions::ShowNew(const std::vector<TreeItem>& items, const std::shared_ptr<IVXFormatNode>& wanted)
{
    m_pane.Select(items);
    if (!items.empty() && wanted == FindRecentCategory(*m_document.Root()))
        emit m_pane.Told(tr("Recently used presets come and go: what is new stands in \"%1\".")
                             .arg(ShownNameOf({m_pane.CurrentCategory()})));
}

// The keyboard stays near what is gone.
void TreeActions::Delete()
{
    const auto items = m_pane.Selected();
    if (items.empty())
        return;
    const auto place = m_document.Tree().PlaceOf(items.front());
    m_editor.Remove(items);
    if (!place.parent)
        return;
    const int left = CountLike(*place.parent, items.front());
    const int next = std::min(place.index, left - 1);
    if (left == 0)
        m_pane.Select({{place.parent}});
    else if (items.front().IsPreset())
        m_pane.Select({{{}, place.parent->GetFormatPreset(next)}});
    else
        m_pane.Select({{place.parent->GetChild(next)}});
}

void TreeActions::Rename() { m_pane.EditName(); }

void TreeActions::Clone()
{
    if (const auto items = m_pane.Selected(); !items.empty())
        m_pane.Select(m_editor.CloneIntoOwn(items));
}

void TreeActions::MoveUp() { Shift(-1); }

void TreeActions::MoveDown() { Shift(1); }

void TreeActions::Shift(int by)
{
    const auto items = m_pane.Selected();
    m_editor.Shift(items, by);
    m_pane.Select(items);
}

void TreeActions::NewCategory()
{
    const auto item = m_editor.AddCategory(m_pane.CurrentCategory(), tr("New Category"));
    m_pane.Select({item});
    m_pane.EditName();
}

} // namespace Vexlor::Studio
