#ifndef KO_VIEWPAGE_H
#define KO_VIEWPAGE_H

#include "ko/TrContext.h"

#include <QStringList>
#include <QWidget>

class QLabel;
class QLineEdit;
class QListView;
class QPushButton;

namespace ko {

class Node;
class NodeHint;
class ViewNodesModel;

/// The page on which a view gets its cameras: those that there are in one list, those of the view, in their
/// order, in the other.
///
/// A view keeps the identifiers. A camera that is gone is not shown, and is in the view again when it comes
/// back.
class ViewPage : public QWidget
{
    Q_OBJECT
    KO_TR_CONTEXT(ViewPage)

public:
    explicit ViewPage(QWidget* parent);

    void init(const QString& nodeId);
    void init(const NodeHint* hint);
    void accept(Node* node);
    void accept(NodeHint* hint);
    void setReadOnly(bool readOnly);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void layOut();
    void connectAll();
    void retranslate();
    void showLists();
    void updateButtons();
    QStringList nodes() const;
    void put(const QStringList& ids, int before);
    void leave(const QStringList& ids);
    void takeOut();
    void move(int step);
    void select(const QStringList& ids);

    QLineEdit* const m_nodes; ///< never seen; for what looks whether a field of the page was changed
    QLineEdit* const m_filter;
    ViewNodesModel* const m_availableNodes;
    ViewNodesModel* const m_chosenNodes;
    QListView* const m_available;
    QListView* const m_chosen;
    QLabel* const m_availableLabel;
    QLabel* const m_chosenLabel;
    QPushButton* const m_add;
    QPushButton* const m_remove;
    QPushButton* const m_up;
    QPushButton* const m_down;
    QStringList m_devices; ///< by name; read when the page is seen
    bool m_isReadOnly = false;
};

} // namespace ko

#endif
