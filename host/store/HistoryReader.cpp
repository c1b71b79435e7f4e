#include "store/HistoryReader.h"

#include "store/ChangeCoding.h"
#include "store/JsonText.h"

namespace ko {

namespace {

// Of recordings the cameras count, not their folders. An edit holds no type; these are properties of cameras.
#define KO_IS_RECORDING                                                                                      \
    "(s.purpose = 'recording' OR s.purpose = 'undo' AND s.subject IN ('recording', 'undo recording'))"
#define KO_IS_OF_CAMERA                                                                                      \
    "(instr(coalesce(after, ''), '\"RecordingStorageUsage\":')"                                              \
    " OR instr(coalesce(after, ''), '\"UseRecordingTransponder\":'))"
// Change sets are numbered in the order of their first lines, so what came before the first one of which any
// are left has lost its own; that one itself may have, too.
#define KO_LAST_THINNED                                                                                      \
    "(SELECT CASE WHEN (SELECT kind FROM chain ORDER BY seq LIMIT 1 OFFSET 1) = 'T' THEN"                    \
    " coalesce((SELECT change_set FROM changes WHERE change_set IS NOT NULL ORDER BY seq LIMIT 1),"          \
    " (SELECT max(seq) FROM change_sets)) ELSE 0 END)"
#define KO_ROWS                                                                                              \
    "SELECT s.seq, s.id, s.time, s.user, s.host, s.purpose, s.subject,"                                      \
    " (SELECT coalesce(nullif(count(DISTINCT CASE WHEN " KO_IS_RECORDING " AND " KO_IS_OF_CAMERA             \
    " THEN id END), 0), count(DISTINCT id)) FROM changes WHERE change_set = s.seq AND kind = 'N'),"          \
    " coalesce((SELECT after FROM changes WHERE change_set = s.seq AND kind = 'N' AND " KO_IS_RECORDING      \
    " AND " KO_IS_OF_CAMERA " LIMIT 1),"                                                                     \
    " (SELECT coalesce(after, before) FROM changes WHERE change_set = s.seq AND kind = 'N' LIMIT 1)),"       \
    " s.seq <= " KO_LAST_THINNED
#define KO_NEWEST "(SELECT * FROM change_sets WHERE seq < ? ORDER BY seq DESC LIMIT ?)"
#define KO_NEWEST_OF_NODES                                                                                   \
    "(SELECT * FROM change_sets WHERE seq IN (SELECT DISTINCT change_set FROM changes"                       \
    " WHERE id IN (SELECT value FROM json_each(?)) AND change_set < ? ORDER BY change_set DESC LIMIT ?))"
#define KO_WANTED                                                                                            \
    " s WHERE s.time BETWEEN ? AND ? AND (? = '' OR s.user LIKE ? ESCAPE '\\') AND (? = '' OR s.purpose = "  \
    "?)"                                                                                                     \
    " AND (? = '[]' OR EXISTS (SELECT 1 FROM changes WHERE change_set = s.seq"                               \
    " AND (kind = 'S' AND id IN (SELECT value FROM json_each(?))"                                            \
    " OR EXISTS (SELECT 1 FROM json_each(?) WHERE instr(before, value) OR instr(after, value)))))"           \
    " AND (? = '' OR s.user LIKE ? ESCAPE '\\' OR s.host LIKE ? ESCAPE '\\' OR s.subject LIKE ? ESCAPE '\\'" \
    " OR instr(?, ' ' || s.purpose || ' ') OR EXISTS (SELECT 1 FROM changes WHERE change_set = s.seq"        \
    " AND (before LIKE ? ESCAPE '\\' OR after LIKE ? ESCAPE '\\')))"                                         \
    " ORDER BY s.seq DESC"

// By an index for each node, so that it costs what there are of nodes and not of changes.
#define KO_LAST_CHANGES                                                                                      \
    "SELECT nodes.n, nodes.id, s.time, s.user FROM nodes LEFT JOIN change_sets s"                            \
    " ON s.seq = (SELECT max(change_set) FROM changes WHERE changes.id = nodes.id) WHERE "

LastChangesPart lastChangesIn(SqliteStore::Rows rows)
{
    LastChangesPart part;
    part.isAtEnd = true;
    while (rows.next()) {
        part.isAtEnd = false;
        part.after = rows.number(0);
        if (rows.number(2) != 0)
            part.changes.append({rows.text(1), rows.number(2), rows.text(3)});
    }
    return part;
}

ChangeSetRow rowOf(const SqliteStore::Rows& rows)
{
    NodeChange first;
    const std::optional<NodeValues> values = ChangeCoding::nodeValues(rows.text(8), &first);
    ChangeSetRow row;
    row.number = rows.number(0);
    row.cause = {rows.text(1), rows.text(3), rows.text(4), rows.number(2), Purposes::fromWord(rows.text(5)),
                 rows.text(6)};
    row.nodes = int(rows.number(7));
    row.firstName = values ? values->name : QString();
    row.isThinned = rows.number(9) != 0;
    return row;
}

/// What finds \a text anywhere.
QString pattern(QString text)
{
    for (const QChar sign : {QLatin1Char('\\'), QLatin1Char('%'), QLatin1Char('_')})
        text.replace(sign, QLatin1String("\\") + sign);
    return QLatin1Char('%') + text + QLatin1Char('%');
}

/// As it is written in the changes of nodes.
QString inJson(const QString& text)
{
    QString json;
    JsonText::appendText(&json, text);
    return json.mid(1, json.size() - 2);
}

QVector<SqlValue> wanted(const HistoryFilter& filter)
{
    const QString purpose = filter.purpose ? Purposes::word(*filter.purpose) : QString::fromLatin1("");
    QStringList written;
    for (const QString& key : filter.properties)
        written.append(QString::fromLatin1("\"%1\":").arg(inJson(key)));
    const QString keys = JsonText::list(filter.properties);
    QString titled = QString::fromLatin1(" ");
    for (const Purpose titledPurpose : filter.titled)
        titled += Purposes::word(titledPurpose) + QLatin1Char(' ');
    const QString user = filter.user;
    const QString text = filter.text;
    const QString plain = pattern(text);
    const QString coded = pattern(inJson(text));
    return {
        filter.from, filter.to, user,  pattern(user), purpose, purpose, keys, keys, JsonText::list(written),
        text,        plain,     plain, plain,         titled,  coded,   coded};
}

} // namespace

HistoryReader::HistoryReader(SqliteStore& store)
    : m_store(store)
{
}

std::optional<ChangeSetRow> HistoryReader::row(qint64 number)
{
    SqliteStore::Rows rows = m_store.run(KO_ROWS " FROM change_sets s WHERE s.seq = ?", {number});
    return rows.next() ? std::make_optional(rowOf(rows)) : std::nullopt;
}

qint64 HistoryReader::lastThinned()
{
    return m_store.value("SELECT " KO_LAST_THINNED).toLongLong();
}

HistoryPage HistoryReader::page(const HistoryFilter& filter, qint64 before, int count)
{
    const bool isOfNodes = !filter.nodes.isEmpty();
    QVector<SqlValue> among = {before, count};
    if (isOfNodes)
        among.prepend(JsonText::list(filter.nodes));
    HistoryPage page;
    {
        SqliteStore::Rows ends =
            isOfNodes ? m_store.run("SELECT min(seq), count(*) FROM " KO_NEWEST_OF_NODES, among)
                      : m_store.run("SELECT min(seq), count(*) FROM " KO_NEWEST, among);
        page.isAtEnd = !ends.next() || ends.number(1) < count;
        page.before = ends.number(0);
    }
    SqliteStore::Rows rows =
        isOfNodes ? m_store.run(KO_ROWS " FROM " KO_NEWEST_OF_NODES KO_WANTED, among + wanted(filter))
                  : m_store.run(KO_ROWS " FROM " KO_NEWEST KO_WANTED, among + wanted(filter));
    while (rows.next())
        page.rows.append(rowOf(rows));
    return page;
}

LastChangesPart HistoryReader::lastChanges(qint64 after, int count)
{
    return lastChangesIn(m_store.run(KO_LAST_CHANGES "nodes.n > ? ORDER BY nodes.n LIMIT ?", {after, count}));
}

QVector<LastChange> HistoryReader::lastChanges(const QStringList& nodes)
{
    return lastChangesIn(m_store.run(KO_LAST_CHANGES "nodes.id IN (SELECT value FROM json_each(?))",
                                     {JsonText::list(nodes)}))
        .changes;
}

} // namespace ko
