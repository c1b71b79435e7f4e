#include "ReadAlterations.h"

#include "database/HostNodeDB.h"
#include "database/StoredHistory.h"
#include "utils/LongWork.h"

#include <QCoreApplication>

namespace ko {

namespace {

constexpr int Slice = 100; // changes

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ReadAlterations)
};

/// None if it cannot be read, or the user wants no more.
std::optional<ChangeSet> read(HostNodeDB& db, qint64 number, LongWork* work)
{
    ChangeSet set;
    ChangeSetPart part;
    while (!part.isAtEnd) {
        if (!work->goOn())
            return std::nullopt;
        part = db.history().changes(number, part.after, Slice);
        if (part.set.number != number)
            return std::nullopt;
        set.number = number;
        set.nodes += part.set.nodes;
        set.relations += part.set.relations;
        set.settings += part.set.settings;
        if (part.set.environments)
            set.environments = part.set.environments;
    }
    return set;
}

} // namespace

std::optional<QVector<Alteration>> readAlterations(HostNodeDB& db, const QVector<ChangeSetRow>& sets,
                                                   QWidget* parent)
{
    int slices = 0;
    for (const ChangeSetRow& row : sets)
        slices += 1 + row.nodes / Slice;
    LongWork work(Texts::tr("What Was Changed"), Texts::tr("Reading what was changed..."), slices, parent);
    QVector<Alteration> alterations;
    for (const ChangeSetRow& row : sets) {
        const std::optional<ChangeSet> set = read(db, row.number, &work);
        if (!set)
            return std::nullopt;
        alterations += Alterations::of(*set);
    }
    return alterations;
}

} // namespace ko
