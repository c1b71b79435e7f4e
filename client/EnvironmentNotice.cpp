#include "EnvironmentNotice.h"

#include "MnemonicText.h"
#include "database/HostNodeDB.h"
#include "ko/Environments.h"
#include "utils/Retranslation.h"

#include <QDialog>
#include <QStatusBar>

namespace ko {

namespace {

const int messageTime = 30000; // ms; it came by surprise

} // namespace

EnvironmentNotice::EnvironmentNotice(HostNodeDB& db, QStatusBar* statusBar)
    : QPushButton(statusBar)
    , m_db(db)
    , m_statusBar(statusBar)
{
    setObjectName(QStringLiteral("environmentBackButton"));
    hide();
    statusBar->addPermanentWidget(this);
    connect(this, &QPushButton::clicked, this, &EnvironmentNotice::switchBack);
    onLanguageChange(this, [this] {
        if (!m_previous.isEmpty())
            showText();
    });
}

int EnvironmentNotice::exec(QDialog& dialog)
{
    hide();
    const QString before = m_db.activeEnvironment();
    const int result = dialog.exec();
    if (result != QDialog::Accepted && m_db.activeEnvironment() != before)
        offer(before);
    return result;
}

void EnvironmentNotice::offer(const QString& previous)
{
    const QString name = nameOf(previous);
    m_statusBar->showMessage(
        tr("The environment of the whole program is now \"%1\".").arg(nameOf(m_db.activeEnvironment())),
        messageTime);
    if (name.isEmpty())
        return; // it was removed meanwhile
    m_previous = previous;
    showText();
    show();
}

void EnvironmentNotice::showText()
{
    setText(tr("Back to \"%1\"").arg(MnemonicText::literal(nameOf(m_previous))));
}

void EnvironmentNotice::switchBack()
{
    hide();
    m_db.setActiveEnvironment(m_previous);
    m_statusBar->showMessage(tr("The environment is \"%1\" again.").arg(nameOf(m_db.activeEnvironment())),
                             messageTime);
}

QString EnvironmentNotice::nameOf(const QString& environment) const
{
    const Environments::List environments = m_db.environments().getList();
    for (const Environments::List::value_type& each : environments) {
        if (each.first == environment)
            return each.second;
    }
    return QString();
}

} // namespace ko
