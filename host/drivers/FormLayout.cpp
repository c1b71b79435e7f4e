#include "drivers/FormLayout.h"

#include <QGridLayout>
#include <QLabel>

namespace ko {

FormLayout::FormLayout(QWidget* page)
    : m_grid(new QGridLayout(page))
{
    m_grid->setContentsMargins(2, 2, 2, 2);
    m_grid->setColumnStretch(1, 1);
}

QLabel* FormLayout::addRow(const QString& caption, QWidget* field, QWidget* behind)
{
    QLabel* label = new QLabel(caption, m_grid->parentWidget());
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setMinimumWidth(100); // as on the library's pages, so that captions line up across them
    label->setBuddy(field);
    m_grid->addWidget(label, m_rows, 0);
    m_grid->addWidget(field, m_rows, 1);
    if (behind)
        m_grid->addWidget(behind, m_rows, 2);
    ++m_rows;
    return label;
}

void FormLayout::addRow(QWidget* field)
{
    m_grid->addWidget(field, m_rows++, 1);
}

} // namespace ko
