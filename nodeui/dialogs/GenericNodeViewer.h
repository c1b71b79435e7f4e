#ifndef KO_GENERICNODEVIEWER_H
#define KO_GENERICNODEVIEWER_H

#include "NodeUIExport.h"
#include "ko/TrContext.h"

#include <QScopedPointer>
#include <QWidget>

namespace Ui {
class GenericNodeViewer;
}

namespace ko {

/// A window that shows type, name and all properties of one node as they are when it is made.
///
/// It does not follow later changes. Its Close button deletes it: whoever made it must not use it after
/// that. An unknown node gives an empty window.
class KO_NODEUI_EXPORT GenericNodeViewer : public QWidget
{
    Q_OBJECT
    KO_TR_CONTEXT(GenericNodeViewer)

public:
    GenericNodeViewer(const QString& id, QWidget* parent);
    ~GenericNodeViewer() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    Q_DISABLE_COPY(GenericNodeViewer)

    void showType(const QString& id);

    const QScopedPointer<Ui::GenericNodeViewer> m_ui;
};

} // namespace ko

#endif
