#include "Site.h"

#include "drivers/NodeTypes.h"
#include "interfaces/INodeDriverComponent.h"
#include "ko/NodeHintIPDevice.h"

#include <QEventLoop>
#include <QFile>

namespace bench {

using namespace ko;

NodeSummary summaryOf(int number, int count)
{
    NodeSummary camera;
    camera.id = QStringLiteral("id%1").arg(number);
    camera.type = IPDeviceType;
    camera.name = QStringLiteral("Camera %1 floor %2").arg(qint64(number) * 7919 % count).arg(number % 40);
    camera.location =
        QStringLiteral("10.%1.%2.%3").arg(number >> 16).arg((number >> 8) & 255).arg(number & 255);
    camera.recordingUsage = 0;
    return camera;
}

QVector<NodeSummary> summaries(int count)
{
    QVector<NodeSummary> cameras;
    cameras.reserve(count);
    for (int number = 0; number < count; ++number)
        cameras.append(summaryOf(number, count));
    return cameras;
}

void addCamera(HostNodeDB& db, const NodeSummary& camera)
{
    const kom::smart<NodeHint> hint = NodeTypes::driver(camera.type)->createNodeHint(camera.type);
    hint->setName(camera.name);
    hint.cast<NodeHintIPDevice>()->address = camera.location;
    db.newNodeHint(*hint);
}

std::unique_ptr<HostNodeDB> open(const QString& file)
{
    StoreError error;
    std::unique_ptr<HostNodeDB> db = HostNodeDB::open(file, &error, HostNodeDB::Check::Behind);
    if (!db)
        qFatal("%s", qPrintable(error.message));
    QEventLoop loop; // else the first look at the nodes would wait for the thread that reads them
    QObject::connect(db.get(), &HostNodeDB::loaded, &loop, &QEventLoop::quit);
    loop.exec();
    return db;
}

QString siteFile(int count)
{
    static const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("%1.kodb").arg(count));
    if (!QFile::exists(file)) {
        const auto db = open(file);
        for (int number = 0; number < count; ++number)
            addCamera(*db, summaryOf(number, count));
        if (!db->flush())
            qFatal("the database of %d nodes could not be stored", count);
    }
    return file;
}

SiteCopy::SiteCopy(int count)
{
    if (!QFile::copy(siteFile(count), file()))
        qFatal("the database of %d nodes could not be copied", count);
}

PlainModel::PlainModel(const QVector<NodeSummary>& nodes)
    : m_nodes(nodes)
{
}

void PlainModel::append(const NodeSummary& node)
{
    const int row = rowCount();
    beginInsertRows(QModelIndex(), row, row);
    m_nodes.append(node);
    endInsertRows();
}

void PlainModel::append(const QVector<NodeSummary>& nodes)
{
    beginInsertRows(QModelIndex(), rowCount(), rowCount() + int(nodes.size()) - 1);
    m_nodes += nodes;
    endInsertRows();
}

void PlainModel::rename(int count, const QString& name)
{
    for (int row = 0; row < count; ++row)
        m_nodes[row].name = name + QString::number(row);
    emit dataChanged(index(0, 0), index(count - 1, columnCount() - 1));
}

int PlainModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_nodes.size());
}

int PlainModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : 3;
}

QVariant PlainModel::data(const QModelIndex& index, int role) const
{
    if (role != Qt::DisplayRole)
        return QVariant();
    const NodeSummary& node = m_nodes.at(index.row());
    switch (index.column()) {
    case 0:
        return node.name;
    case 1:
        return QStringLiteral("IP Camera");
    default:
        return node.location;
    }
}

} // namespace bench
