#include "EnvironmentMenu.h"

#include "MnemonicText.h"
#include "database/HostNodeDB.h"
#include "ko/Environments.h"
#include "ko/OutsideText.h"
#include "utils/Retranslation.h"

#include <QActionGroup>
#include <QEvent>
#include <QMenu>

namespace ko {

EnvironmentMenu::EnvironmentMenu(HostNodeDB& db, QWidget* parent)
    : QToolButton(parent)
    , m_db(db)
    , m_menu(new QMenu(this))
    , m_group(new QActionGroup(this))
{
    setObjectName(QStringLiteral("environmentMenuButton"));
    setMenu(m_menu);
    setPopupMode(QToolButton::InstantPopup);
    setToolButtonStyle(Qt::ToolButtonTextOnly);
    connect(m_menu, &QMenu::aboutToShow, this, &EnvironmentMenu::fill);
    parent->window()->installEventFilter(this);
    connect(&m_db, &HostNodeDB::settingsChanged, this, &EnvironmentMenu::update);
    onLanguageChange(this, [this] { update(); });
}

void EnvironmentMenu::setAction(QAction* action)
{
    m_action = action;
    update();
}

bool EnvironmentMenu::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::WindowActivate)
        update();
    return QToolButton::eventFilter(watched, event);
}

void EnvironmentMenu::update()
{
    const Environments::List all = m_db.environments().getList();
    QString active;
    for (const Environments::List::value_type& each : all) {
        if (each.first == m_db.activeEnvironment())
            active = OutsideText::visible(each.second);
    }
    setText(tr("Environment: %1").arg(MnemonicText::literal(active)));
    setAccessibleName(tr("Environment: %1").arg(active));
    setToolTip(tr("The network environment of the whole program"));
    if (m_action)
        m_action->setVisible(all.size() > 1);
}

void EnvironmentMenu::fill()
{
    m_menu->clear();
    const Environments::List all = m_db.environments().getList();
    for (const Environments::List::value_type& each : all) {
        QAction* action = m_menu->addAction(MnemonicText::literal(OutsideText::visible(each.second)));
        action->setCheckable(true);
        action->setChecked(each.first == m_db.activeEnvironment());
        m_group->addAction(action);
        connect(action, &QAction::triggered, this, [this, id = each.first] {
            m_db.setActiveEnvironment(id);
            update();
        });
    }
}

} // namespace ko
