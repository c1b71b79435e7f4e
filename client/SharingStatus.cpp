#include "SharingStatus.h"

#include "SharingDialog.h"
#include "SharingWords.h"
#include "SiteSharing.h"
#include "database/HostNodeDB.h"
#include "database/StoredHistory.h"
#include "utils/Retranslation.h"

namespace ko {

SharingStatus::SharingStatus(HostNodeDB& db, SiteSharing& sharing, QWidget* parent)
    : QToolButton(parent)
    , m_db(db)
    , m_sharing(sharing)
{
    setObjectName(QStringLiteral("sharingStatus"));
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    connect(this, &QToolButton::clicked, this, &SharingStatus::showMore);
    connect(&m_sharing, &SiteSharing::changed, this, &SharingStatus::refresh);
    setTranslated(this, [this] { refresh(); });
}

void SharingStatus::refresh()
{
    const int undone = int(m_db.history().undoneChanges().size());
    const QString state = SharingWords::brief(m_sharing.state(), m_sharing.since());
    const bool lacksKey = m_sharing.needsPassphrase() && m_sharing.key().record.hasKey();
    if (lacksKey && m_sharing.state().kind == SharingState::UpToDate && undone == 0)
        setText(tr("%1, passphrase needed...").arg(state));
    else
        setText(undone > 0 ? tr("%1, %n change(s) could not be made", nullptr, undone).arg(state) : state);
    setToolTip(SharingWords::full(m_sharing.state(), m_sharing.address()));
}

void SharingStatus::showMore()
{
    SharingDialog(m_db, m_sharing, window()).exec();
}

} // namespace ko
