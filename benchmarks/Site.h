#ifndef KO_BENCHMARKS_SITE_H
#define KO_BENCHMARKS_SITE_H

#include "database/HostNodeDB.h"

#include <QAbstractTableModel>
#include <QTemporaryDir>

namespace bench {

/// Cameras of a made-up site: names in no order, addresses of their own.
ko::NodeSummary summaryOf(int number, int count);
QVector<ko::NodeSummary> summaries(int count);

/// Adds a camera as any caller of the database does.
void addCamera(ko::HostNodeDB& db, const ko::NodeSummary& camera);

/// A database file of this many cameras, made once for all workloads and then only read.
QString siteFile(int count);

/// A copy of such a file that may be written, gone with the object.
class SiteCopy
{
public:
    explicit SiteCopy(int count);
    QString file() const { return m_folder.filePath(QStringLiteral("site.kodb")); }

private:
    QTemporaryDir m_folder;
};

std::unique_ptr<ko::HostNodeDB> open(const QString& file);

/// What one would write without this library: rows in a vector.
class PlainModel : public QAbstractTableModel
{
public:
    /// Name, type and address; what the toolkit shows of a row.
    explicit PlainModel(const QVector<ko::NodeSummary>& nodes = QVector<ko::NodeSummary>());

    void append(const ko::NodeSummary& node);
    /// The same for many, as one range.
    void append(const QVector<ko::NodeSummary>& nodes);
    /// Gives this many of the first rows these names, as one range.
    void rename(int count, const QString& name);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    QVector<ko::NodeSummary> m_nodes;
};

} // namespace bench

#endif
