#ifndef KO_PLAINTABLE_H
#define KO_PLAINTABLE_H

class QAbstractItemModel;
class QLabel;
class QTableView;
class QWidget;

namespace ko {

/// Makes \a table one to be read: whole rows are selected, nothing is edited, Tab leaves it, and its columns
/// are measured by the first rows, of however many.
void preparePlainTable(QTableView* table, const char* objectName, QAbstractItemModel* model);

/// \a table below its \a title, which becomes the label of it. Returns a widget that owns both.
QWidget* titled(QLabel* title, QTableView* table);

} // namespace ko

#endif
