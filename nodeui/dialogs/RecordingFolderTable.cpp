#include "dialogs/RecordingFolderTable.h"

#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "ko/PropertyKeys.h"
#include "ko/connect.h"
#include "utils/NaturalOrder.h"

#include <QHeaderView>
#include <QTableWidget>
#include <QTextDocument>

#include <algorithm>
#include <functional>

namespace ko {

namespace {

enum Column { NameColumn, PathColumn, IdColumn };

const int rowHeight = 20;

/// Up to this many rows are removed one by one.
const int fewRows = 16;

bool isFolder(const QString& id)
{
    NodeBrief brief; // for which no node is read
    return NodeDB::getDB()->getBrief(id, &brief) && brief.type == RecordingFolderType;
}

/// The node if it is a recording folder.
kom::smart<const Node> folder(const QString& id)
{
    return isFolder(id) ? NodeDB::getDB()->node(id) : kom::smart<const Node>();
}

/// Those that may be in the table.
QList<kom::smart<const Node>> listedFolders(const QStringList& ids)
{
    NodeDB::getDB()->readAhead(ids);
    QList<kom::smart<const Node>> listed;
    for (const QString& id : ids) {
        const kom::smart<const Node> node = folder(id);
        if (!node.null() && !node->boolProperty(PropertyKeys::UseGlobalPath, false))
            listed.append(node);
    }
    return listed;
}

QStringList foldersOfNobodyElse(const QString& cameraId)
{
    NodeDB* db = NodeDB::getDB();
    QStringList ids(db->relatedNodes(cameraId, RecordingFolderRelation).value(0));
    const QStringList folders = db->nodeIdList(RecordingFolderType);
    for (const QString& id : folders) {
        if (!db->isDestinationOfNodeRelation(id, RecordingFolderRelation))
            ids.append(id);
    }
    return ids;
}

} // namespace

/// The cell of the identifier, which knows its row.
class FolderRow : public QTableWidgetItem
{
public:
    explicit FolderRow(const QString& id)
        : QTableWidgetItem(id)
    {
    }

    bool operator<(const QTableWidgetItem& other) const override
    {
        const FolderRow& row = static_cast<const FolderRow&>(other);
        return isGone == row.isGone ? QTableWidgetItem::operator<(other) : row.isGone;
    }

    int number = -1;     ///< as the rows were numbered last
    bool isGone = false; ///< about to be removed: sorted behind the others
};

namespace {

/// A cell whose text is its tool tip too. Takes half the time of the toolkit's own to make and to sort.
class FolderCell : public QTableWidgetItem
{
public:
    FolderCell(const FolderRow* row, const QString& text, Qt::Alignment alignment,
               const QIcon& icon = QIcon())
        : m_row(row)
        , m_text(text)
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
        const FolderCell& cell = static_cast<const FolderCell&>(other); // the columns hold nothing else
        if (m_row->isGone != cell.m_row->isGone)
            return cell.m_row->isGone;
        const int order = compareNaturally(m_text, cell.m_text, Qt::CaseInsensitive);
        return order != 0 ? order < 0 : m_text < cell.m_text;
    }

private:
    const FolderRow* const m_row;
    const QString m_text;
    const Qt::Alignment m_alignment;
    const QIcon m_icon;
};

FolderRow* rowAt(const QTableWidget* table, int row)
{
    return static_cast<FolderRow*>(table->item(row, IdColumn));
}

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
    ko::connect(&m_frame, SIGNAL(due()), this, SLOT(applyChanges()));
}

RecordingFolderTable::~RecordingFolderTable() = default;

void RecordingFolderTable::fill(const QString& cameraId)
{
    m_table->setSortingEnabled(false); // or every row would be put in its place
    append(foldersOfNobodyElse(cameraId));
    m_table->setSortingEnabled(true);
}

void RecordingFolderTable::add(const QString& id)
{
    if (isFolder(id))
        note(Added, id);
}

void RecordingFolderTable::update(const QString& id)
{
    if (m_rows.contains(id)) // one that is to be added is read then
        note(Updated, id);
}

void RecordingFolderTable::remove(const QString& id)
{
    if (m_rows.contains(id) || !m_changes.isEmpty())
        note(Removed, id);
}

void RecordingFolderTable::note(Kind kind, const QString& id)
{
    m_changes.append(qMakePair(kind, id));
    if (m_frame.isNow(m_table->rowCount())) // sorting takes about a microsecond for each
        applyChanges();
}

void RecordingFolderTable::applyChanges()
{
    QStringList ids;
    QHash<QString, bool> isListed; // in the end
    for (const QPair<Kind, QString>& change : std::as_const(m_changes)) {
        if (!isListed.contains(change.second))
            ids.append(change.second);
        const bool isUpdate = change.first == Updated;
        isListed[change.second] = isUpdate ? isListed.value(change.second, true) : change.first == Added;
    }
    m_changes.clear();
    QStringList added;
    QStringList updated;
    QStringList removed;
    for (const QString& id : std::as_const(ids)) {
        if (m_rows.contains(id))
            (isListed.value(id) ? updated : removed).append(id);
        else if (isListed.value(id))
            added.append(id);
    }
    show(added, updated, removed);
}

void RecordingFolderTable::show(const QStringList& added, const QStringList& updated,
                                const QStringList& removed)
{
    const bool isMuch = removed.size() > fewRows;
    if (!isMuch)
        removeRows(removed);
    if (!added.isEmpty() || !updated.isEmpty() || isMuch) {
        // While it sorts, a row that gets its new name moves away before it gets its new path.
        m_table->setSortingEnabled(false);
        refresh(updated);
        append(added);
        if (isMuch)
            markGone(removed);
        m_table->setSortingEnabled(true);
    }
    if (isMuch)
        removeGone(int(removed.size()));
}

/// The last one becomes the current one.
void RecordingFolderTable::append(const QStringList& ids)
{
    const QList<kom::smart<const Node>> folders = listedFolders(ids);
    if (folders.isEmpty())
        return;
    int row = m_table->rowCount();
    m_table->setRowCount(row + int(folders.size()));
    for (const kom::smart<const Node>& node : folders) {
        FolderRow* cell = new FolderRow(node->id());
        m_table->setItem(row, IdColumn, cell);
        m_rows.insert(node->id(), cell);
        fillRow(row++, cell, *node);
    }
    m_table->setCurrentCell(row - 1, NameColumn);
}

void RecordingFolderTable::refresh(const QStringList& ids)
{
    numberRows();
    NodeDB::getDB()->readAhead(ids);
    for (const QString& id : ids) {
        FolderRow* cell = m_rows.value(id);
        const kom::smart<const Node> node = folder(id);
        if (!node.null())
            fillRow(cell->number, cell, *node);
    }
}

void RecordingFolderTable::markGone(const QStringList& ids)
{
    for (const QString& id : ids)
        m_rows.take(id)->isGone = true;
}

/// In one piece, which they are after sorting.
void RecordingFolderTable::removeGone(int count)
{
    const bool isDescending = rowAt(m_table, 0)->isGone;
    m_table->model()->removeRows(isDescending ? 0 : m_table->rowCount() - count, count);
}

void RecordingFolderTable::removeRows(const QStringList& ids)
{
    if (ids.isEmpty())
        return;
    numberRows();
    QList<int> numbers;
    for (const QString& id : ids)
        numbers.append(m_rows.take(id)->number);
    std::sort(numbers.begin(), numbers.end(), std::greater<int>());
    for (const int number : std::as_const(numbers))
        m_table->removeRow(number);
}

void RecordingFolderTable::numberRows()
{
    for (int row = 0; row < m_table->rowCount(); ++row)
        rowAt(m_table, row)->number = row;
}

QString RecordingFolderTable::selected()
{
    applyChanges();
    int row = m_table->currentRow();
    if (row < 0 && m_table->rowCount() == 1)
        row = 0;
    return row < 0 ? QString() : rowAt(m_table, row)->text();
}

void RecordingFolderTable::setColumnWidths(int width)
{
    for (const int column : {NameColumn, PathColumn})
        m_table->setColumnWidth(column, width / 2);
}

void RecordingFolderTable::fillRow(int row, const FolderRow* of, const Node& folder)
{
    const QString path = folder.stringProperty(PropertyKeys::Path, QString());
    m_table->setItem(row, NameColumn,
                     new FolderCell(of, folder.name(), Qt::AlignLeft | Qt::AlignVCenter, folder.icon()));
    m_table->setItem(row, PathColumn, new FolderCell(of, path, Qt::AlignRight | Qt::AlignVCenter));
}

} // namespace ko
