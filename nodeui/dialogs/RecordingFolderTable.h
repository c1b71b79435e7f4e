#ifndef KO_RECORDINGFOLDERTABLE_H
#define KO_RECORDINGFOLDERTABLE_H

#include "ko/OncePerFrame.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QPair>
#include <QString>

class QTableWidget;

namespace ko {

class FolderRow;
class Node;

/// The table of the recording folders that a camera may get: its own and those of no camera. A folder below
/// the default path is not listed, because it serves its camera only.
///
/// Many changes at once are shown together, before the table is painted again.
class RecordingFolderTable : public QObject
{
    Q_OBJECT

public:
    /// Takes over the looks of \a table, which has columns for name, path and node and stays its owner's.
    explicit RecordingFolderTable(QTableWidget* table);
    ~RecordingFolderTable() override;

    /// The last folder becomes the current one.
    void fill(const QString& cameraId);

    /// Adds the node, which becomes the current one, if it is a folder that may be listed.
    void add(const QString& id);
    void update(const QString& id);
    void remove(const QString& id);

    /// The current folder, or the only one; empty if there is none.
    QString selected();

    /// Divides \a width between name and path.
    void setColumnWidths(int width);

private slots:
    void applyChanges();

private:
    enum Kind { Added, Updated, Removed };

    void note(Kind kind, const QString& id);
    void show(const QStringList& added, const QStringList& updated, const QStringList& removed);
    void append(const QStringList& ids);
    void refresh(const QStringList& ids);
    void markGone(const QStringList& ids);
    void removeGone(int count);
    void removeRows(const QStringList& ids);
    void numberRows();
    void fillRow(int row, const FolderRow* of, const Node& folder);

    QTableWidget* const m_table;
    QHash<QString, FolderRow*> m_rows;     ///< by folder; the table owns them
    QList<QPair<Kind, QString>> m_changes; ///< not shown yet
    OncePerFrame m_frame;
};

} // namespace ko

#endif
