#include "StudioDocument.h"

#include "PresetEdit.h"
#include "catalog/DefaultTree.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

namespace Vexlor::Studio
{

StudioDocument::StudioDocument(QObject* parent) : QObject(parent), m_root(Catalog::DefaultTree()) {}

StudioDocument::~StudioDocument() = default;

void StudioDocument::EditPreset(const std::shared_ptr<IVXFormatPreset>& preset, const QString& what,
                                const std::function<void(IVXFormatPreset&)>& change, int run)
{
    auto after = preset->Clone();
    change(*after);
    auto edit = std::make_unique<PresetEdit>(preset, std::move(after), run,
                                             [this](const auto& changed) { emit PresetChanged(changed); });
    if (edit->IsIdle())
        return;
    edit->setText(what);
    m_undo.push(edit.release());
}

} // namespace Vexlor::Studio
