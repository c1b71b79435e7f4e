#ifndef KO_ADDNODEDIALOG_H
#define KO_ADDNODEDIALOG_H

#include "dialogs/NodeDialog.h"
#include "ko/TrContext.h"
#include "ko/Types.h"
#include "kom/smart.h"

#include <QList>
#include <QScopedPointer>

namespace Ui {
class AddNodeDialog;
}

namespace ko {

class NodeHint;

/// Creates a node: the user chooses a type and fills the inspector that the driver of the type builds.
///
/// OK hands the filled hint to NodeDB::newNodeHint(). Choosing another type starts over. For a type
/// whose driver delivers no hint OK creates nothing.
class KO_NODEUI_EXPORT AddNodeDialog : public NodeDialog
{
    Q_OBJECT
    KO_TR_CONTEXT(AddNodeDialog)

public:
    /// \a context goes into the hint and is how the dialog knows its node again, so it should be unlike
    /// that of any other dialog that is open; it is never dereferenced. \a types and \a sorted are those
    /// of NodeDB::readableNodeTypeNames(). \a flags: see NodeDialog::Flag.
    AddNodeDialog(void* context, QWidget* parent, const QList<ENodeType>* types, bool sorted, unsigned flags);
    ~AddNodeDialog() override;

    /// The node created; empty after a cancel and until the database has announced it.
    QString nodeId() const { return m_nodeId; }

private slots:
    void setInspectorFromIndex(int index);
    void ok();
    void nodeAdded(ko::NodeID id);

private:
    Q_DISABLE_COPY(AddNodeDialog)

    void fillTypes(const QList<ENodeType>* types, bool sorted);
    void removeInspector();
    void showTitle();
    void retranslate();
    void createInspector(ENodeType type);

    void* const m_context;
    const QScopedPointer<Ui::AddNodeDialog> m_ui;
    kom::smart<NodeHint> m_hint;
    const unsigned m_flags;
    QString m_nodeId;
};

} // namespace ko

#endif
