#ifndef TESTS_HOST_STORETESTING_H
#define TESTS_HOST_STORETESTING_H

#include "database/HostNodeDB.h"
#include "drivers/NodeTypes.h"
#include "interfaces/INodeDriverComponent.h"
#include "ko/IPDeviceNode.h"
#include "ko/NodeHintIPDevice.h"

#include "support/PropertyView.h"

#include <QCryptographicHash>
#include <QFile>
#include <QSignalSpy>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>

namespace testsupport {

inline std::unique_ptr<ko::HostNodeDB> openDatabase(const QString& file)
{
    ko::StoreError error;
    std::unique_ptr<ko::HostNodeDB> db = ko::HostNodeDB::open(file, &error);
    if (!db)
        qWarning("%s: %s", qPrintable(error.message), qPrintable(error.detail));
    return db;
}

/// Adds a node as the add dialog does and returns its id.
inline QString addNode(ko::HostNodeDB& db, ko::ENodeType type, const QString& name, const QString& place,
                       void* context = nullptr)
{
    const kom::smart<ko::NodeHint> hint = db.nodeDriver(type)->createNodeHint(type);
    hint->setName(name);
    hint->context = context;
    if (auto* device = dynamic_cast<ko::NodeHintIPDevice*>(hint.get()))
        device->address = place;
    else
        hint->setStringProperty(QLatin1String("Path"), place);
    QSignalSpy inserted(&db, SIGNAL(nodeInserted(ko::NodeID)));
    db.newNodeHint(*hint);
    return inserted.isEmpty() ? QString() : inserted.last().at(0).toString();
}

inline QString addCamera(ko::HostNodeDB& db, const QString& name, const QString& address)
{
    return addNode(db, ko::IPDeviceType, name, address);
}

inline void setText(ko::HostNodeDB& db, const QString& id, const char* key, const QString& value)
{
    ko::Node* node = db.beginUpdateNode(id, -1);
    QVERIFY(node);
    node->setStringProperty(QLatin1String(key), value);
    db.endUpdateNode(node);
}

inline QString text(const ko::HostNodeDB& db, const QString& id, const char* key)
{
    const kom::smart<const ko::Node> node = db.node(id);
    return node.null() ? QString::fromLatin1("(no node)")
                       : node->stringProperty(QLatin1String(key), QLatin1String("(no value)"));
}

inline QByteArray digest(const QString& file)
{
    QFile reader(file);
    if (!reader.open(QIODevice::ReadOnly))
        return QByteArray();
    return QCryptographicHash::hash(reader.readAll(), QCryptographicHash::Sha256);
}

/// A look into the file, past the host; a connection of its own that closes with it. Properties are shown as
/// the table properties.
class PlainSql
{
public:
    explicit PlainSql(const QString& file)
        : m_name(QString::fromLatin1("plain-%1").arg(quintptr(this)))
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QLatin1String("QSQLITE"), m_name);
        database.setDatabaseName(file);
        if (!database.open())
            qFatal("cannot open %s", qPrintable(file));
        if (run(QLatin1String("SELECT 1 FROM sqlite_schema WHERE name = 'node_properties'")).isValid()) {
            const QByteArrayList view = propertyView();
            for (const QByteArray& statement : view)
                run(QLatin1String(statement));
        }
    }
    ~PlainSql() { QSqlDatabase::removeDatabase(m_name); }

    /// First column of the first row, or invalid; a failed statement ends the test.
    QVariant run(const QString& sql)
    {
        QSqlQuery query(QSqlDatabase::database(m_name));
        if (!query.exec(sql))
            qFatal("%s: %s", qPrintable(sql), qPrintable(query.lastError().text()));
        return query.next() ? query.value(0) : QVariant();
    }

    template <class Visit>
    void forEach(const char* sql, const Visit& visit) const
    {
        QSqlQuery query(QSqlDatabase::database(m_name));
        if (!query.exec(QLatin1String(sql)))
            qFatal("%s: %s", sql, qPrintable(query.lastError().text()));
        while (query.next())
            visit(query);
    }

private:
    Q_DISABLE_COPY(PlainSql)
    const QString m_name;
};

/// Everything that a change set may change, in one text: equal texts, equal databases.
inline QString stateOf(const QString& file)
{
    PlainSql sql(file);
    QStringList rows;
    for (const char* query :
         {"SELECT group_concat(n || id || type || name || '|' || location || recording || lookup, x'0a')"
          " FROM (SELECT * FROM nodes ORDER BY n)",
          "SELECT group_concat(node || key || type || '|' || value, x'0a')"
          " FROM (SELECT * FROM properties ORDER BY node, key)",
          "SELECT group_concat(seq || '|' || source || '|' || destination || '|' || type, x'0a')"
          " FROM (SELECT * FROM relations ORDER BY seq)",
          "SELECT group_concat(key || '=' || value, x'0a') FROM (SELECT * FROM settings ORDER BY key)",
          "SELECT group_concat(position || id || name, x'0a')"
          " FROM (SELECT * FROM environments ORDER BY position)"})
        rows.append(sql.run(QLatin1String(query)).toString());
    return rows.join(QLatin1String("\n--\n"));
}

} // namespace testsupport

#endif
