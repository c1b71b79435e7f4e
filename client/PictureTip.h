#ifndef KO_PICTURETIP_H
#define KO_PICTURETIP_H

#include "ko/TrContext.h"

#include <QObject>
#include <QPoint>
#include <QTimer>

namespace ko {

class CameraPictures;
class NodeListView;

/// Shows in the list's tool tip what the camera under the mouse sees. It is fetched when the mouse rests
/// there, and given up when it goes on.
class PictureTip : public QObject
{
    Q_OBJECT
    KO_TR_CONTEXT(PictureTip)

public:
    enum Limits {
        Delay = 400, ///< ms on the row, after the tool tip itself; rows that are passed over fetch nothing
        Width = 240, ///< pixels, at most
        Height = 180
    };

    /// The list owns it; the pictures outlive it.
    PictureTip(NodeListView& list, CameraPictures& pictures);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool show(const QPoint& place);
    void showTip();
    QString html() const;
    QString idAt(const QPoint& place) const;
    void leave();

    NodeListView& m_list;
    CameraPictures& m_pictures;
    QTimer m_delay;
    QString m_id;   ///< of the row that is looked at; empty for none
    QPoint m_place; ///< in the viewport
};

} // namespace ko

#endif
