#include "ScanFindings.h"

#include "NameList.h"
#include "PlainMessageBox.h"
#include "database/HostNodeDB.h"
#include "database/StoredHistory.h"
#include "history/PuttingBack.h"

#include <QCoreApplication>
#include <QPushButton>

namespace ko {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ScanFindings)
};

} // namespace

ScanFindings::ScanFindings(HostNodeDB& db)
    : m_db(db)
{
    connect(&db, &NodeDB::nodeInserted, this, [this](const NodeID& id) { m_inserted.insert(id); });
    connect(&db.history(), &StoredHistory::stored, this, [this](const QVector<StoredSet>& sets) {
        for (const StoredSet& set : sets) {
            if (set.cause.purpose != Purpose::Scan || m_sets.contains(set.number))
                continue;
            m_sets.append(set.number);
            m_cause = set.cause;
        }
    });
}

QVector<Alteration> ScanFindings::additions()
{
    QVector<Alteration> additions;
    const QVector<qint64> sets = m_sets; // reading one stores what waits, and so may add to them
    for (const qint64 number : sets) {
        const std::optional<ChangeSet> set = m_db.history().changeSet(number);
        const QVector<Alteration> all = set ? Alterations::of(*set) : QVector<Alteration>();
        for (const Alteration& each : all) {
            // A scan that was left running has found others before.
            if (each.kind == Alteration::Node && each.isAddition() && m_inserted.contains(each.node) &&
                !m_db.summary(each.node).id.isEmpty())
                additions.append(each);
        }
    }
    return additions;
}

QStringList ScanFindings::names()
{
    m_db.flush(); // what came last is in no change set yet
    QStringList names;
    const QVector<Alteration> all = additions();
    for (const Alteration& each : all)
        names.append(each.name.isEmpty() ? m_db.summary(each.node).location : each.name);
    return names;
}

int ScanFindings::takeBack()
{
    const std::optional<PutBack> preview = PuttingBack::preview(m_db, additions());
    if (!preview)
        return 0; // what cannot be read is said by itself
    return int(PuttingBack::apply(m_db, *preview, Cause::undoing({m_cause})).done.size());
}

QString ScanFindings::ask(QWidget* parent)
{
    const QStringList found = names();
    if (found.isEmpty())
        return QString();
    const int count = int(found.size());
    PlainMessageBox box(QMessageBox::Question, Texts::tr("Find Devices"), QString(), QMessageBox::NoButton,
                        parent);
    box.setObjectName(QStringLiteral("scanFindingsBox"));
    box.setText(
        Texts::tr("The scan has found %n new device(s) and added them to the database:", nullptr, count) +
        QStringLiteral("\n\n") + listOfNames(found));
    QPushButton* keep = box.addButton(Texts::tr("&Keep Them"), QMessageBox::AcceptRole);
    const QPushButton* back = box.addButton(Texts::tr("&Take Them Out Again"), QMessageBox::DestructiveRole);
    box.setDefaultButton(keep);
    box.setEscapeButton(keep);
    box.exec();
    if (box.clickedButton() != static_cast<const QAbstractButton*>(back))
        return Texts::tr("%n device(s) found and added.", nullptr, count);
    return Texts::tr("%n device(s) taken out again.", nullptr, takeBack());
}

} // namespace ko
