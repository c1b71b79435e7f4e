#ifndef KO_INSPECTORWIDGET_H
#define KO_INSPECTORWIDGET_H

#include "NodeUIExport.h"

#include "ko/Types.h"

#include <QWidget>

namespace ko {

class NodeHint;

/// Base of the editors of one node.
///
/// An inspector edits an existing node, or the hint of a node to be created. A derived inspector stacks
/// property pages, plain widgets with init(QString), init(const NodeHint*), setReadOnly(bool),
/// accept(Node*) and accept(NodeHint*), and applies them in ok():
/// - to a node: InspectorWidget::ok(), which records the old name; NodeDB::beginUpdateNode(); accept() of
///   every page in order; NodeDB::endUpdateNode(); logPropertyChange();
/// - to a hint: accept() of every page. Nothing is logged.
class KO_NODEUI_EXPORT InspectorWidget : public QWidget
{
    Q_OBJECT

public:
    /// Editor of an existing node; its nodeUpdated() is connected to the database's.
    InspectorWidget(QString id, bool readOnly, QWidget* parent, unsigned flags);

    /// Editor of a node to be created. The hint is not owned and must outlive the inspector.
    InspectorWidget(NodeHint& hint, QWidget* parent, unsigned flags);

    ~InspectorWidget() override;

    /// Called when the active environment changed: show what holds now.
    virtual void updateNode();

public slots:
    /// Applies what the user entered; here it only records the node's name.
    virtual void ok();
    virtual void cancel();

    /// Called for every node that changed, not only for this one.
    virtual void nodeUpdated(ko::NodeID id);

protected:
    /// Logs that the node changed, and before that its rename if its name is no longer the one that ok()
    /// recorded. Nothing is logged for a node that is gone.
    virtual void logPropertyChange();

    const QString& nodeId() const { return m_id; } ///< empty for a hint
    NodeHint* nodeHint() const { return m_hint; }  ///< null for a node
    bool isReadOnly() const { return m_readOnly; }
    unsigned flags() const { return m_flags; }

    /// For derived inspectors to remember a page across instances.
    static unsigned int s_page;

private:
    Q_DISABLE_COPY(InspectorWidget)

    const QString m_id;
    NodeHint* const m_hint;
    const bool m_readOnly;
    const unsigned m_flags;
    QString m_oldName;
};

} // namespace ko

#endif
