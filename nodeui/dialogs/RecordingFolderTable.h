#ifndef KO_RECORDINGFOLDERTABLE_H
#define KO_RECORDINGFOLDERTABLE_H

#include <QString>

class QTableWidget;

namespace ko {

class Node;

/// The table of the recording folders that a camera may get: its own and those of no camera. A folder below
/// the default path is not listed, because it serves its camera only.
class RecordingFolderTable
{
public:
    /// Takes over the looks of \a table, which has columns for name, path and node and stays its owner's.
    explicit RecordingFolderTable(QTableWidget* table);

    /// The last folder becomes the current one.
    void fill(const QString& cameraId);

    /// Adds the node, which becomes the current one, if it is a folder that may be listed.
    void add(const QString& id);
    void update(const QString& id);
    void remove(const QString& id);

    /// The current folder, or the only one; empty if there is none.
    QString selected() const;

    /// Divides \a width between name and path.
    void setColumnWidths(int width);

private:
    int rowOf(const QString& id) const;
    void fillRow(int row, const Node& folder);

    QTableWidget* const m_table;
};

} // namespace ko

#endif
