#pragma once

#include "Finding.h"

#include <QWidget>

class QLabel;
class QTableView;

namespace Vexlor::Studio
{

class FindingsModel;

/// The list of what a check or an import has found; what is chosen in it is shown in the tree.
class FindingsPane : public QWidget
{
    Q_OBJECT

public:
    explicit FindingsPane(QWidget* parent = nullptr);

    /// Shows those, with a sentence about all of them above.
    void Show(const QString& summary, Findings findings);
    /// Forgets them: their items are no longer in the tree.
    void Clear();

signals:
    /// The user wants to see that.
    void Chosen(const Vexlor::Studio::TreeItem& item);

private:
    void Choose(const QModelIndex& index);

    FindingsModel* m_model;
    QLabel* m_summary;
    QTableView* m_view;
};

} // namespace Vexlor::Studio
