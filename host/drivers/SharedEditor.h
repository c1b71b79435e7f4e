#ifndef KO_SHAREDEDITOR_H
#define KO_SHAREDEDITOR_H

#include "HostExport.h"
#include "drivers/InspectorPages.h"
#include "ko/TrContext.h"
#include "model/PropertyList.h"

#include <QHash>
#include <QSet>
#include <QStringList>
#include <QWidget>

namespace ko {

class ILayoutAdapter;
class PageStack;

/// The pages of a type for several nodes of it. A field shows what they have in common; what differs is shown
/// as different and is left alone unless it is touched. What tells one node from the others cannot be edited
/// here, nor what has a window of its own for several.
class KO_HOST_EXPORT SharedEditor : public QWidget
{
    Q_OBJECT
    KO_TR_CONTEXT(SharedEditor)

public:
    /// \a nodes are of \a type, and at least one. \a layouts: see EditNodeDialog.
    SharedEditor(ENodeType type, const QStringList& nodes, const ILayoutAdapter* layouts, QWidget* parent);

    bool isTouched() const;

    /// The first field that can be edited.
    void focusFirstField();

    /// What the touched fields change of a node, as its own editor would. Passwords are in the clear. Nothing
    /// if the node is gone.
    QVector<PropertyList::Entry> changesOf(const NodeID& node) const;

private:
    typedef QHash<QString, QVariant> Values; ///< by the names of the fields

    void prepare(const QWidget& page);
    void showDifferent(QWidget* field);
    void showEmptied(QWidget* field);
    void findDifferent(const QStringList& nodes);
    bool isTouched(const QWidget* field) const;

    PageStack* const m_stack;
    QHash<const QWidget*, QVariant> m_shown; ///< what a field shows that nobody has touched
    QSet<const QWidget*> m_typed;            ///< line edits, which may be empty again
};

} // namespace ko

#endif
