#include "LanguageMenu.h"

#include "Languages.h"
#include "utils/Retranslation.h"

#include <QAction>
#include <QActionGroup>
#include <QTimer>

namespace ko {

LanguageMenu::LanguageMenu(QMenu& menu, QWidget* parent)
    : QMenu(parent)
    , m_languages(new QActionGroup(this))
{
    setObjectName(QStringLiteral("languageMenu"));
    add(QString(), QString());
    addSeparator();
    for (const Languages::Language& language : Languages::all())
        add(QLatin1String(language.code), language.name);
    menu.addSeparator();
    menu.addMenu(this);
    setTranslated(this, [this] {
        setTitle(tr("&Language"));
        actions().constFirst()->setText(tr("&As the System"));
        check();
    });
    connect(this, &QMenu::aboutToShow, this, &LanguageMenu::check);
}

void LanguageMenu::add(const QString& code, const QString& name)
{
    QAction* action = addAction(name);
    action->setObjectName(QStringLiteral("language_") + code);
    action->setData(code);
    action->setCheckable(true);
    m_languages->addAction(action);
    // When the menu is closed: its texts change under it.
    connect(action, &QAction::triggered, this,
            [this, code] { QTimer::singleShot(0, this, [code] { Languages::choose(code); }); });
}

void LanguageMenu::check()
{
    const QString chosen = Languages::chosen();
    const QList<QAction*> actions = m_languages->actions();
    for (QAction* action : actions)
        action->setChecked(action->data().toString() == chosen);
}

} // namespace ko
