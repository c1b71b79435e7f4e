#include "ChangedMeanwhile.h"

#include "database/HostNodeDB.h"
#include "database/StoredHistory.h"
#include "ko/OutsideText.h"
#include "utils/Retranslation.h"

#include <QBoxLayout>
#include <QDialog>
#include <QTimer>

#include <limits>

namespace ko {

namespace {

const int mostLookedAt = 50; // change sets of the node

} // namespace

void ChangedMeanwhile::addTo(QDialog& dialog, HostNodeDB& db, const QString& id, NodeEditors::Access access)
{
    if (auto* layout = qobject_cast<QBoxLayout*>(dialog.layout()))
        layout->insertWidget(0, new ChangedMeanwhile(db, id, access, &dialog));
}

ChangedMeanwhile::ChangedMeanwhile(HostNodeDB& db, const QString& id, NodeEditors::Access access,
                                   QWidget* parent)
    : QLabel(parent)
    , m_db(db)
    , m_id(id)
    , m_access(access)
    , m_seen(db.history().newest())
{
    setObjectName(QStringLiteral("changedMeanwhileLabel"));
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    QSizePolicy policy = sizePolicy();
    policy.setRetainSizeWhenHidden(true); // nothing moves under the user's hand when the line comes
    setSizePolicy(policy);
    setText(QStringLiteral(" ")); // an empty one is less high
    hide();
    connect(&m_db, &NodeDB::nodeUpdated, this, &ChangedMeanwhile::later);
    connect(&m_db, &NodeDB::nodeRemoved, this, &ChangedMeanwhile::later);
    connect(&m_db.history(), &StoredHistory::stored, this, [this](const QVector<StoredSet>& sets) {
        for (const StoredSet& set : sets)
            m_ours.insert(set.number);
    });
    connect(&m_db.editors(), &NodeEditors::othersChanged, this, &ChangedMeanwhile::showText);
    m_db.editors().open(m_id, m_access);
    onLanguageChange(this, [this] { showText(); });
    showText();
}

ChangedMeanwhile::~ChangedMeanwhile()
{
    m_db.editors().close(m_id, m_access);
}

/// What this program did is known as its own only when it is stored, at the end of this turn.
void ChangedMeanwhile::later(const QString& id)
{
    if (id != m_id || m_isLate)
        return;
    m_isLate = true;
    QTimer::singleShot(0, this, [this] {
        m_isLate = false;
        m_db.flush();
        look();
        showText();
    });
}

void ChangedMeanwhile::look()
{
    HistoryFilter filter;
    filter.nodes = QStringList(m_id);
    const HistoryPage page = m_db.history().page(filter, std::numeric_limits<qint64>::max(), mostLookedAt);
    const qint64 seen = m_seen;
    for (auto row = page.rows.rbegin(); row != page.rows.rend(); ++row) {
        if (row->number > seen && !m_ours.contains(row->number))
            m_cause = row->cause;
        m_seen = qMax(m_seen, row->number);
    }
}

void ChangedMeanwhile::showText()
{
    QStringList texts = {changeText(), editorsText()};
    texts.removeAll(QString());
    if (!texts.isEmpty())
        setText(texts.join(QLatin1Char(' ')));
    setVisible(!texts.isEmpty());
}

QString ChangedMeanwhile::changeText() const
{
    if (m_cause.id.isEmpty())
        return QString();
    const QString user = OutsideText::visible(m_cause.user);
    const QString station = OutsideText::visible(m_cause.station);
    return m_db.summary(m_id).id.isEmpty() ? tr("Removed by %1 at %2. What you enter here cannot be stored; "
                                                "Edit > History puts the node back.")
                                                 .arg(user, station)
                                           : tr("Changed by %1 at %2 meanwhile.").arg(user, station);
}

QString ChangedMeanwhile::editorsText() const
{
    const QVector<NodeEditor> others = m_db.editors().others(m_id);
    QStringList names;
    for (const NodeEditor& other : others)
        names.append(
            tr("%1 at %2").arg(OutsideText::visible(other.user), OutsideText::visible(other.station)));
    names.removeDuplicates();
    return names.isEmpty()
               ? QString()
               : tr("Also being edited now by %1.").arg(names.join(tr(", ", "between the parts of a list")));
}

} // namespace ko
