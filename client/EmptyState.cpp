#include "EmptyState.h"

#include "utils/Retranslation.h"

#include <QAction>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace ko {

EmptyState::EmptyState(QWidget* area)
    : QWidget(area)
    , m_text(new QLabel(this))
    , m_showAll(new QPushButton(this))
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
    setTranslated(this, [this] {
        m_showAll->setText(tr("Show All Nodes"));
        for (const Way& way : std::as_const(m_ways))
            way.button->setText(tr(way.text));
        setCounts(m_nodes, m_shown);
    });
}

QString EmptyState::readingText()
{
    return tr("Reading the nodes...");
}

void EmptyState::addWay(QAction* action, const char* text)
{
    QPushButton* button = new QPushButton(action->icon(), tr(text), this);
    button->setObjectName(action->objectName() + QStringLiteral("Button"));
    connect(button, &QPushButton::clicked, action, &QAction::trigger);
    layout()->addWidget(button);
    m_ways.append({button, text});
}

void EmptyState::setCounts(int nodes, int shown)
{
    m_nodes = nodes;
    m_shown = shown;
    m_text->setText(nodes < 0    ? readingText()
                    : nodes == 0 ? tr("There is nothing in this database yet.")
                                 : tr("No node matches the search."));
    for (const Way& way : std::as_const(m_ways))
        way.button->setVisible(nodes == 0);
    m_showAll->setVisible(nodes > 0);
    setVisible(shown == 0);
}

} // namespace ko
