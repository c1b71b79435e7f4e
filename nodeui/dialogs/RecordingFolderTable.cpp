#include "dialogs/RecordingFolderTable.h"

#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "ko/PropertyKeys.h"

#include <QHeaderView>
#include <QTableWidget>
#include <QTextDocument>

namespace ko {

namespace {

enum Column { NameColumn, PathColumn, IdColumn };

const int rowHeight = 20;

/// The node if it is a recording folder.
kom::smart<const Node> folder(const QString& id)
{
    const kom::smart<const Node> node = NodeDB::getDB()->node(id);
    return !node.null() && node->type == RecordingFolderType ? node : kom::smart<const Node>();
}

/// The folder if it may be in the table.
kom::smart<const Node> listedFolder(const QString& id)
{
    const kom::smart<const Node> node = folder(id);
    const bool below = !node.null() && node->boolProperty(PropertyKeys::UseGlobalPath, false);
    return below ? kom::smart<const Node>() : node;
}

/// A cell whose text is its tool tip too. Takes half the time of the toolkit's own to make and to sort.
class FolderCell : public QTableWidgetItem
{
public:
    FolderCell(const QString& text, Qt::Alignment alignment, const QIcon& icon = QIcon())
        : m_text(text)
        , m_alignment(alignment)
        , m_icon(icon)
    {
        setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    }

    QVariant data(int role) const override
    {
        switch (role) {
        case Qt::DisplayRole:
            return m_text;
        case Qt::ToolTipRole: // which would take a name with markup for rich text
            return Qt::mightBeRichText(m_text) ? Qt::convertFromPlainText(m_text) : m_text;
        case Qt::DecorationRole:
            return m_icon.isNull() ? QVariant() : QVariant(m_icon);
        case Qt::TextAlignmentRole:
            return int(m_alignment);
        default:
            return QVariant();
        }
    }

    bool operator<(const QTableWidgetItem& other) const override
    {
        return m_text < static_cast<const FolderCell&>(other).m_text; // the columns hold nothing else
    }

private:
    const QString m_text;
    const Qt::Alignment m_alignment;
    const QIcon m_icon;
};

} // namespace

RecordingFolderTable::RecordingFolderTable(QTableWidget* table)
    : m_table(table)
{
    m_table->setColumnHidden(IdColumn, true);
    const int height = qMax(rowHeight, m_table->fontMetrics().height() + 2); // of a large font
    m_table->verticalHeader()->setMinimumSectionSize(height);
    m_table->verticalHeader()->setDefaultSectionSize(height);
    m_table->horizontalHeader()->setSortIndicator(NameColumn, Qt::AscendingOrder);
    setColumnWidths(m_table->viewport()->width());
}

void RecordingFolderTable::fill(const QString& cameraId)
{
    // Sorted once at the end: a table that sorts at each row takes a minute for ten thousand.
    NodeDB* db = NodeDB::getDB();
    m_table->setSortingEnabled(false);
    QStringList ids(db->relatedNodes(cameraId, RecordingFolderRelation).value(0));
    const QStringList folders = db->nodeIdList(RecordingFolderType);
    for (const QString& id : folders) {
        if (!db->isDestinationOfNodeRelation(id, RecordingFolderRelation))
            ids.append(id);
    }
    QList<kom::smart<const Node>> listed;
    for (const QString& id : std::as_const(ids)) {
        const kom::smart<const Node> node = listedFolder(id);
        if (!node.null())
            listed.append(node);
    }
    m_table->setRowCount(int(listed.size()));
    for (int row = 0; row < m_table->rowCount(); ++row)
        fillRow(row, *listed.at(row));
    m_table->setCurrentCell(m_table->rowCount() - 1, NameColumn);
    m_table->setSortingEnabled(true);
}

void RecordingFolderTable::add(const QString& id)
{
    const kom::smart<const Node> node = listedFolder(id);
    if (node.null())
        return;
    const int row = m_table->rowCount();
    m_table->setSortingEnabled(false);
    m_table->insertRow(row);
    fillRow(row, *node);
    m_table->setCurrentCell(row, NameColumn);
    m_table->setSortingEnabled(true);
}

void RecordingFolderTable::update(const QString& id)
{
    const kom::smart<const Node> node = folder(id);
    const int row = rowOf(id);
    if (node.null() || row < 0)
        return;
    // While it sorts, a row that gets its new name moves away before it gets its new path.
    m_table->setSortingEnabled(false);
    fillRow(row, *node);
    m_table->setSortingEnabled(true);
}

void RecordingFolderTable::remove(const QString& id)
{
    const int row = rowOf(id);
    if (row >= 0)
        m_table->removeRow(row);
}

QString RecordingFolderTable::selected() const
{
    int row = m_table->currentRow();
    if (row < 0 && m_table->rowCount() == 1)
        row = 0;
    return row < 0 ? QString() : m_table->item(row, IdColumn)->text();
}

void RecordingFolderTable::setColumnWidths(int width)
{
    for (const int column : {NameColumn, PathColumn})
        m_table->setColumnWidth(column, width / 2);
}

int RecordingFolderTable::rowOf(const QString& id) const
{
    for (int row = 0; row < m_table->rowCount(); ++row) {
        if (m_table->item(row, IdColumn)->text() == id)
            return row;
    }
    return -1;
}

void RecordingFolderTable::fillRow(int row, const Node& folder)
{
    const QString path = folder.stringProperty(PropertyKeys::Path, QString());
    m_table->setItem(row, NameColumn,
                     new FolderCell(folder.name(), Qt::AlignLeft | Qt::AlignVCenter, folder.icon()));
    m_table->setItem(row, PathColumn, new FolderCell(path, Qt::AlignRight | Qt::AlignVCenter));
    m_table->setItem(row, IdColumn, new QTableWidgetItem(folder.id()));
}

} // namespace ko
