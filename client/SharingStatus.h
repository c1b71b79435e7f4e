#ifndef KO_SHARINGSTATUS_H
#define KO_SHARINGSTATUS_H

#include "ko/TrContext.h"

#include <QToolButton>

namespace ko {

class HostNodeDB;
class SiteSharing;

/// Says in the status bar how the desk and its site are with each other; a click says more.
class SharingStatus : public QToolButton
{
    Q_OBJECT
    KO_TR_CONTEXT(SharingStatus)

public:
    /// Both outlive the widget.
    SharingStatus(HostNodeDB& db, SiteSharing& sharing, QWidget* parent = nullptr);

private:
    void refresh();
    void showMore();

    HostNodeDB& m_db;
    SiteSharing& m_sharing;
};

} // namespace ko

#endif
