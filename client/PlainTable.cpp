#include "PlainTable.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>

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

QWidget* titled(QLabel* title, QTableView* table)
{
    QWidget* part = new QWidget;
    QVBoxLayout* layout = new QVBoxLayout(part);
    layout->setContentsMargins(0, 0, 0, 0);
    title->setBuddy(table);
    layout->addWidget(title);
    layout->addWidget(table);
    return part;
}

} // namespace ko
