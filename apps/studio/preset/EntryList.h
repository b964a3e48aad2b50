#pragma once

#include <QStringList>

namespace Vexlor::Studio
{

/// A list that a user edits, its entries by their display texts, one of them the current one.
///
/// The library keeps the current entry as a number that no change of the list touches. To a user it is an
/// entry, which the functions below keep.
class EntryList
{
public:
    virtual ~EntryList() = default;
    EntryList(const EntryList&) = delete;
    EntryList& operator=(const EntryList&) = delete;

    /// The display texts of all entries.
    virtual QStringList Texts() const = 0;
    /// Number of the current entry; it may lie outside the list.
    virtual int Current() const = 0;
    /// Makes the entry at index the current one.
    virtual void Choose(int index) = 0;
    /// Removes the entry at index.
    virtual void Remove(int index) = 0;
    /// Moves the entry at from to just before the one at to, which may be the count.
    virtual void Move(int from, int to) = 0;

protected:
    EntryList() = default;
};

/// Removes the entry at index. The current one stays; where it is the one that goes, the one behind it takes
/// its place, or the last.
void RemoveEntry(EntryList& list, int index);
/// Exchanges the entry at index with its neighbour, by -1 or 1 further; nothing where there is none. The
/// current one stays.
void MoveEntry(EntryList& list, int index, int by);

} // namespace Vexlor::Studio
