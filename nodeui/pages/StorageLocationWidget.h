#ifndef KO_STORAGELOCATIONWIDGET_H
#define KO_STORAGELOCATIONWIDGET_H

#include "NodeUIExport.h"
#include "ko/TrContext.h"

#include <QScopedPointer>
#include <QWidget>

namespace Ui {
class StorageLocationWidget;
}

namespace ko {

class Node;
class NodeHint;

/// Page that tells where a camera's recordings are played from, and leads to the dialog that changes it.
///
/// The page itself writes nothing.
class KO_NODEUI_EXPORT StorageLocationWidget : public QWidget
{
    Q_OBJECT
    KO_TR_CONTEXT(StorageLocationWidget)

public:
    explicit StorageLocationWidget(QWidget* parent);
    ~StorageLocationWidget() override;

    void init(const NodeHint* hint);
    void init(QString nodeId);
    void accept(Node* node);
    void accept(NodeHint* hint);
    void setReadOnly(bool readOnly);

private slots:
    void changeLocation();

private:
    Q_DISABLE_COPY(StorageLocationWidget)

    void showLocation(const Node& camera);

    const QScopedPointer<Ui::StorageLocationWidget> m_ui;
    QString m_nodeId;
};

} // namespace ko

#endif
