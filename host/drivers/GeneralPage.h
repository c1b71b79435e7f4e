#ifndef KO_GENERALPAGE_H
#define KO_GENERALPAGE_H

#include "ko/TrContext.h"

#include <QWidget>

class QLineEdit;

namespace ko {

class Node;
class NodeHint;

/// The page on which a node gets its name.
class GeneralPage : public QWidget
{
    Q_OBJECT
    KO_TR_CONTEXT(GeneralPage)

public:
    explicit GeneralPage(QWidget* parent);

    void init(const QString& nodeId);
    void init(const NodeHint* hint);
    void accept(Node* node);
    void accept(NodeHint* hint);
    void setReadOnly(bool readOnly);

public slots:
    /// Takes the name over unless the node has one that the user gave it.
    void proposeName(const QString& name);

private slots:
    void nameEdited(const QString& name);

private:
    QLineEdit* const m_nameLineEdit;
    bool m_named = false;
};

} // namespace ko

#endif
