#include "EmptyState.h"

#include <QAction>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace ko {

EmptyState::EmptyState(QWidget* area)
    : QWidget(area)
    , m_text(new QLabel(this))
    , m_showAll(new QPushButton(tr("Show All Nodes"), this))
{
    setObjectName(QStringLiteral("emptyState"));
    m_text->setObjectName(QStringLiteral("emptyTextLabel"));
    m_text->setAlignment(Qt::AlignCenter);
    m_showAll->setObjectName(QStringLiteral("showAllButton"));
    connect(m_showAll, &QPushButton::clicked, this, &EmptyState::showAll);
    QVBoxLayout* layout = new QVBoxLayout(this);
    layout->addWidget(m_text);
    layout->addWidget(m_showAll);
    QGridLayout* middle = new QGridLayout(area);
    middle->addWidget(this, 0, 0, Qt::AlignCenter);
    hide();
}

void EmptyState::addWay(QAction* action, const QString& text)
{
    QPushButton* button = new QPushButton(action->icon(), text, this);
    button->setObjectName(action->objectName() + QStringLiteral("Button"));
    connect(button, &QPushButton::clicked, action, &QAction::trigger);
    layout()->addWidget(button);
    m_ways.append(button);
}

void EmptyState::setCounts(int nodes, int shown)
{
    m_text->setText(nodes == 0 ? tr("There is nothing in this database yet.") : tr("No node is like that."));
    for (QPushButton* button : std::as_const(m_ways))
        button->setVisible(nodes == 0);
    m_showAll->setVisible(nodes > 0);
    setVisible(shown == 0);
}

} // namespace ko
