#ifndef KO_DETAILSDOCK_H
#define KO_DETAILSDOCK_H

#include "NodeDetails.h"
#include "ko/TrContext.h"
#include "model/NodeData.h"

#include <QDockWidget>
#include <QTimer>

#include <memory>

class QMenu;
class QTextBrowser;
class QVBoxLayout;

namespace ko {

class MainWindow;
class NodeListModel;
class PictureView;

/// Beside the list: what the selected node is and what it sees, or what several share.
class DetailsDock : public QDockWidget
{
    Q_OBJECT
    KO_TR_CONTEXT(DetailsDock)

public:
    /// \a view is the menu in which it can be shown. The window owns it.
    DetailsDock(MainWindow& window, NodeListModel& model, QMenu& view);
    ~DetailsDock() override;

    /// Of nodes that are new or changed, when the list has taken them.
    void take(const QVector<NodeSummary>& changed);

protected:
    bool event(QEvent* event) override;

private:
    void later();
    void refresh();
    void showPicture(const QString& id);
    QString html(const QStringList& ids) const;

    MainWindow& m_window;
    const NodeDetails m_details;
    QVBoxLayout* const m_layout;
    QTextBrowser* const m_text;
    std::unique_ptr<PictureView> m_picture;
    QStringList m_shown;
    QTimer m_late; ///< whoever holds an arrow key down in the list should not wait for each
};

} // namespace ko

#endif
