#include "StudioDocument.h"

#include "OwnCategory.h"
#include "PresetEdit.h"
#include "TreeEdits.h"
#include "apps/studio/ShownText.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include <QFileInfo>

#include <utility>

namespace Vexlor::Studio
{

namespace
{

void Collect(const PlannedNode& plan, std::unordered_set<const void*>& presets)
{
    for (const auto& preset : plan.presets)
        presets.insert(preset.preset.get());
    for (const auto& child : plan.children)
        Collect(child, presets);
}

std::unordered_set<const void*> PresetsOf(const DocumentBasis& basis)
{
    std::unordered_set<const void*> presets;
    Collect(basis.plan, presets);
    return presets;
}

} // namespace

StudioDocument::StudioDocument(QObject* parent) : QObject(parent), m_basis(std::make_shared<DocumentBasis>())
{
    m_recent.Adopt();
    connect(&m_undo, &QUndoStack::indexChanged, this, &StudioDocument::StateChanged);
    connect(&m_undo, &QUndoStack::cleanChanged, this, &StudioDocument::StateChanged);
    connect(&m_tree, &PresetTree::LookChanged, this, &StudioDocument::TellOfLook);
}

StudioDocument::~StudioDocument()
{
    m_undo.disconnect(this); // which tells of steps while it goes
}

QString StudioDocument::Title() const
{
    return m_path.isEmpty() ? tr("Built-in presets") : QFileInfo(m_path).fileName();
}

bool StudioDocument::IsModified() const { return !m_undo.isClean(); }

void StudioDocument::SetContent(DocumentContent content, const QString& path)
{
    TakeUp(std::move(content), path);
    emit Replaced();
}

void StudioDocument::TakeUp(DocumentContent content, const QString& path)
{
    m_undo.clear();
    m_path = path;
    m_basis = std::move(content.basis);
    m_asRead = PresetsOf(*m_basis);
    m_textOfFile.reset();
    m_tree.SetRoot(std::move(content.root));
    m_recent.Adopt();
    emit StateChanged();
}

void StudioDocument::SetRecovered(DocumentContent content, const QString& path, std::string textOfFile)
{
    TakeUp(std::move(content), path);
    // The text of the tree comes out of what was found, while the file is expected to be as it was.
    m_undo.resetClean();
    m_textOfFile = std::move(textOfFile);
    emit StateChanged();
}

PlannedNode StudioDocument::Plan() const
{
    return PlanOf(Root(), [this](const IVXFormatPreset& preset) { return IsAsRead(preset); });
}

void StudioDocument::SetSaved(const QString& path, std::shared_ptr<const DocumentBasis> basis)
{
    m_path = path;
    m_basis = std::move(basis);
    m_asRead = PresetsOf(*m_basis);
    m_textOfFile.reset();
    m_undo.setClean();
    emit StateChanged();
}

void StudioDocument::EditPreset(const std::shared_ptr<IVXFormatPreset>& preset, const QString& what,
                                const std::function<void(IVXFormatPreset&)>& change, int run)
{
    const auto after = preset->Clone();
    change(*after);
    auto edit = std::make_unique<PresetEdit>(preset, after, run,
                                             [this](const auto& changed) { TellOfChange(changed); });
    if (edit->IsIdle())
        return;
    const TreeItem item{{}, preset};
    if (RecentIndexOf(item) >= 0)
        SetName({{}, after}, NameAsOwn(*Root(), item, NameOf({{}, after})));
    Push(std::move(edit), what, item);
}

void StudioDocument::EditLook(const TreeItem& item, const QString& what,
                              const std::function<void(ItemLook&)>& change, int run)
{
    const auto before = LookOf(item);
    auto after = before;
    change(after);
    if (after == before)
        return;
    if (RecentIndexOf(item) >= 0)
        after.name = NameAsOwn(*Root(), item, after.name);
    Push(std::make_unique<LookEdit>(m_tree, item, std::move(after), run), what, item);
}

int StudioDocument::RecentIndexOf(const TreeItem& item) const
{
    const auto recent = FindRecentCategory(*Root());
    return recent && item.preset ? recent->IndexOfFormatPreset(item.preset) : -1;
}

void StudioDocument::Push(std::unique_ptr<QUndoCommand> edit, const QString& what, const TreeItem& item)
{
    const int recentIndex = RecentIndexOf(item);
    if (recentIndex >= 0)
        AdoptAsOwn(m_tree, {item, {FindRecentCategory(*Root()), recentIndex}}, *edit);
    edit->setText(MenuText(what));
    m_undo.push(edit.release());
    if (recentIndex >= 0)
        emit MadeOwn(item.preset);
}

void StudioDocument::NoteUsed(const IVXFormatPreset& preset, const IVXFormatPreset& asItWas)
{
    m_recent.Note(preset, asItWas);
}

void StudioDocument::TellOfLook(const TreeItem& item)
{
    if (item.preset)
        TellOfChange(item.preset);
}

void StudioDocument::TellOfChange(const std::shared_ptr<IVXFormatPreset>& preset)
{
    m_asRead.erase(preset.get());
    emit PresetChanged(preset);
}

} // namespace Vexlor::Studio
