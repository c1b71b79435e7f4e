#include "SiteKeyPrompt.h"

#include "PassphraseInput.h"
#include "SiteKeyWords.h"
#include "SitePassphraseDialog.h"
#include "SiteSharing.h"
#include "database/HostNodeDB.h"
#include "ko/Terminal.h"
#include "sharing/SiteAddress.h"
#include "sharing/SiteKeyWork.h"

#include <QApplication>
#include <QEventLoop>

namespace ko {

namespace SiteKeyPrompt {

namespace {

const int mostTries = 3;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(SiteKeyPrompt)
};

SiteKeyOutcome run(const QString& address, const SiteKeyTask& task)
{
    QEventLoop loop;
    SiteKeyOutcome result;
    SiteKeyWork work(address, task);
    QObject::connect(&work, &SiteKeyWork::done, &loop, [&](const SiteKeyOutcome& outcome) {
        result = outcome;
        loop.quit();
    });
    loop.exec();
    return result;
}

/// Asked twice, since nobody sees what is typed.
std::optional<QString> newPassphrase(const QString& site)
{
    for (int i = 0; i < mostTries; ++i) {
        const std::optional<QString> first =
            PassphraseInput::fromTerminal(Texts::tr("A new passphrase for the site \"%1\":").arg(site));
        std::optional<QString> second =
            first ? PassphraseInput::fromTerminal(Texts::tr("Again:")) : std::nullopt;
        if (!second || *first == *second)
            return second;
        Terminal::say(stderr, Texts::tr("The two passphrases are not the same."));
    }
    return std::nullopt;
}

std::optional<QString> passphrase(const SiteKeyTask& task, const QString& address)
{
    const QString site = SiteAddress::shown(address);
    return task.kind == SiteKeyTask::Make
               ? newPassphrase(site)
               : PassphraseInput::fromTerminal(Texts::tr("The passphrase of the site \"%1\":").arg(site));
}

/// Opens the key that there is, or makes it.
bool obtain(const QString& address, SiteKeyTask task)
{
    const QString given = PassphraseInput::fromEnvironment();
    for (int i = 0; i < (given.isEmpty() ? mostTries : 1); ++i) {
        const std::optional<QString> typed =
            given.isEmpty() ? passphrase(task, address) : std::make_optional(given);
        if (!typed) {
            Terminal::say(stderr,
                          Texts::tr("The passphrase of the site is not given. Passwords are not read, and "
                                    "cannot be stored. Type it at a terminal, or set the variable "
                                    "KO_SITE_PASSPHRASE."));
            return false;
        }
        task.passphrase = *typed;
        const SiteKeyOutcome outcome = run(address, task);
        const QString text = SiteKeyWords::text(outcome, address);
        if (!text.isEmpty())
            Terminal::say(stderr, text);
        if (outcome.isHere)
            return true;
    }
    return false;
}

SitePassphraseDialog::Kind kindOf(const SiteKeyOutcome& seen)
{
    if (!seen.record.hasKey())
        return SitePassphraseDialog::Kind::Make;
    return seen.isHere ? SitePassphraseDialog::Kind::Change : SitePassphraseDialog::Kind::Open;
}

} // namespace

bool onLine(const QString& address, const QString& site, bool makes)
{
    SiteKeyTask task;
    task.site = site;
    const SiteKeyOutcome seen = run(address, task);
    if (seen.isHere)
        return true;
    const QString problem = seen.kind == SiteKeyOutcome::Done ? QString() : SiteKeyWords::text(seen, address);
    const bool mayObtain = seen.record.hasKey() || (makes && seen.record.hasTables && seen.record.mayMake);
    if (problem.isEmpty() && !seen.record.hasKey() && !makes)
        return false; // nobody needs it
    if (!problem.isEmpty() || !mayObtain) {
        Terminal::say(stderr, problem.isEmpty() ? SiteKeyWords::missing(seen) : problem);
        return false;
    }
    task.kind = seen.record.hasKey() ? SiteKeyTask::Open : SiteKeyTask::Make;
    return obtain(address, task);
}

void ask(SiteSharing& sharing, QWidget* window)
{
    const SiteKeyOutcome& seen = sharing.key();
    SitePassphraseDialog dialog(kindOf(seen), sharing.address(), seen.site, window);
    if (dialog.exec() == QDialog::Accepted)
        sharing.takeNewKey();
}

void watch(const HostNodeDB& db, SiteSharing& sharing, QWidget* window)
{
    const auto obtain = [&sharing, window] {
        const QString given = PassphraseInput::fromEnvironment();
        // A question must not come between what the user is at; the status bar says it as well. One that was
        // answered may be closed already, and its answer not yet taken.
        const auto askUnlessBusy = [&sharing, window] {
            const bool isAsked = window->findChild<SitePassphraseDialog*>();
            if (!isAsked && !QApplication::activeModalWidget() && sharing.needsPassphrase())
                ask(sharing, window);
        };
        if (given.isEmpty() || !sharing.key().record.hasKey())
            return askUnlessBusy();
        SiteKeyTask task;
        task.site = sharing.key().site;
        task.kind = SiteKeyTask::Open;
        task.passphrase = given;
        auto* work = new SiteKeyWork(sharing.address(), task, window);
        QObject::connect(work, &SiteKeyWork::done, work, &QObject::deleteLater);
        QObject::connect(work, &SiteKeyWork::done, &sharing,
                         [&sharing, askUnlessBusy](const SiteKeyOutcome& outcome) {
                             if (outcome.isHere)
                                 sharing.takeNewKey();
                             else
                                 askUnlessBusy();
                         });
    };
    const auto askAgain = [&sharing, window](const StoreError& error) {
        QWidget* front = QApplication::activeModalWidget() ? QApplication::activeModalWidget() : window;
        if (error.kind == StoreError::SiteKeyMissing && sharing.needsPassphrase() &&
            !qobject_cast<SitePassphraseDialog*>(front))
            ask(sharing, front);
    };
    QObject::connect(&db, &HostNodeDB::storeFailed, window, askAgain, Qt::QueuedConnection);
    // Later: a new key lets what has told of this one begin anew.
    QObject::connect(&sharing, &SiteSharing::passphraseWanted, window, obtain, Qt::QueuedConnection);
}

} // namespace SiteKeyPrompt

} // namespace ko
