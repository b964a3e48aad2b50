#pragma once

#include "EntryList.h"
#include "ListFamilies.h"

#include <QString>

#include <memory>
#include <optional>

namespace Vexlor::Studio
{

/// One list of a codec preset, which must outlive it.
class ValueEntries final : public EntryList
{
public:
    ValueEntries(IVXCodecPreset& codec, const ListFamily& family);
    ~ValueEntries() override;

    QStringList Texts() const override;
    int Current() const override;
    void Choose(int index) override;
    void Remove(int index) override;
    void Move(int from, int to) override;

    /// Makes the list the codec's own. The current entry stays as far as its text is still there, else it is
    /// the first.
    void Reset();
    /// Puts the value that the text tells behind the list and answers its number; that of the entry which has
    /// the value already; nothing where the text tells none. Throws Tool::Failure for a value that the codec
    /// does not take, with what it takes instead.
    std::optional<int> Add(const QString& text);
    /// True where neither the list nor the codec has more than one entry to choose from.
    bool OffersNothing() const;

private:
    IVXCodecPreset& m_codec;
    const ListFamily& m_family;
    std::unique_ptr<Tool::PresetList> m_list;
};

} // namespace Vexlor::Studio
