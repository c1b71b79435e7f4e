#ifndef KO_NODELISTVIEW_H
#define KO_NODELISTVIEW_H

#include "NodeListModel.h"

#include <QSet>
#include <QTreeView>

namespace ko {

/// The table of nodes. What is selected stays selected, by identifier, when the filter shows other rows.
class NodeListView : public QTreeView
{
    Q_OBJECT

public:
    explicit NodeListView(QWidget* parent = nullptr);

    void setNodeModel(NodeListModel* model);

    /// Identifiers of the selected nodes, in the order of the rows.
    QStringList selectedIds() const;
    int selectedCount() const;
    void selectNode(const QString& id);

signals:
    /// Return was pressed or a row was double-clicked.
    void nodeActivated(const QString& id);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void remember();
    void restore();

    NodeListModel* m_model = nullptr;
    QSet<QString> m_selected;
    QString m_current;
};

} // namespace ko

#endif
