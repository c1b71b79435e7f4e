#ifndef KO_PLAINTABLE_H
#define KO_PLAINTABLE_H

class QAbstractItemModel;
class QTableView;

namespace ko {

/// Makes \a table one to be read: whole rows are selected, nothing is edited, Tab leaves it, and its columns
/// are measured by the first rows, of however many.
void preparePlainTable(QTableView* table, const char* objectName, QAbstractItemModel* model);

} // namespace ko

#endif
