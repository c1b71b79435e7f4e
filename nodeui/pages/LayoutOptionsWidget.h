#ifndef KO_LAYOUTOPTIONSWIDGET_H
#define KO_LAYOUTOPTIONSWIDGET_H

#include "inspector/LayoutListPage.h"
#include "ko/TrContext.h"

#include <QScopedPointer>
#include <QWidget>

namespace Ui {
class LayoutOptionsWidget;
}

namespace ko {

class Node;
class NodeHint;

/// Page on which is set how the client presents a node in its live views.
///
/// After init(QString) the two lists are filled by fillLayoutComboBox() and fillAudioPathIdComboBox();
/// the edit dialog does so for the page named "layoutOptionsWidget" in the tab "layoutOptions". Options
/// that the node does not carry are disabled, and written all the same: accept() always writes all four,
/// "0" for a layout list that was never filled. The page has no part in creating a node.
class KO_NODEUI_EXPORT LayoutOptionsWidget : public QWidget, public LayoutListPage
{
    Q_OBJECT
    KO_TR_CONTEXT(LayoutOptionsWidget)

public:
    explicit LayoutOptionsWidget(QWidget* parent);
    ~LayoutOptionsWidget() override;

    void init(const NodeHint* hint);
    void init(QString nodeId);

    void fillLayoutComboBox(const ILayoutAdapter* adapter) override;
    void fillAudioPathIdComboBox() override;

    void accept(Node* node);
    void accept(NodeHint* hint);
    void setReadOnly(bool readOnly);

private slots:
    void openFileSelector();

private:
    Q_DISABLE_COPY(LayoutOptionsWidget)

    void retranslate();

    const QScopedPointer<Ui::LayoutOptionsWidget> m_ui;
    QString m_nodeId;
};

} // namespace ko

#endif
