#include "PlainTable.h"

#include <QHeaderView>
#include <QTableView>

namespace ko {

void preparePlainTable(QTableView* table, const char* objectName, QAbstractItemModel* model)
{
    table->setObjectName(QLatin1String(objectName));
    table->setModel(model);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setTabKeyNavigation(false);
    table->setWordWrap(false);
    table->setAlternatingRowColors(true);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(table->verticalHeader()->minimumSectionSize());
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setResizeContentsPrecision(50);
}

} // namespace ko
