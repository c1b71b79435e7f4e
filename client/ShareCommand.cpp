#include "ShareCommand.h"

#include "Application.h"
#include "KeychainNotice.h"
#include "SharingWords.h"
#include "SiteKeyPrompt.h"
#include "SiteSharing.h"
#include "ko/OutsideText.h"
#include "ko/Terminal.h"
#include "sharing/SiteAddress.h"
#include "sharing/SiteVerification.h"
#include "store/SharedLog.h"
#include "store/StoreFile.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>

namespace ko {

namespace {

using Terminal::say;

const int patience = 60000;  // ms, for a server that is away
const int mostAttempts = 20; // to find file and site at rest

} // namespace

ShareCommand::ShareCommand(const QString& file, const QString& address)
    : m_file(StoreFile::resolved(file))
    , m_address(address)
    , m_opening(address, SiteOpening::Way::Line)
{
}

int ShareCommand::run()
{
    KeychainNotice notice(KeychainNotice::Way::Line);
    notice.prepare();
    try {
        if (!mayBeShared())
            return Application::NoDatabase;
        const std::optional<SiteGreeting> greeting = m_opening.greet(true);
        const bool isDone = greeting && fits(*greeting) && hasKey(*greeting) &&
                            m_opening.catchUp(m_file, patience) && verify();
        return isDone ? Application::Good : Application::Failed;
    } catch (const StoreFailure& failure) {
        say(stderr, failure.error.message);
        return Application::NoDatabase;
    }
}

/// Looks before anything is written, here or there.
bool ShareCommand::mayBeShared()
{
    if (!QFileInfo::exists(m_file)) {
        say(stderr, tr("There is no file \"%1\".").arg(QDir::toNativeSeparators(m_file)));
        return false;
    }
    StoreError error;
    const std::unique_ptr<SharedLog> log = SharedLog::open(m_file, &SiteSharing::describe, &error);
    if (!log) {
        say(stderr, error.message);
        return false;
    }
    if (log->hasClearPasswords()) {
        say(stderr,
            tr("\"%1\" has passwords of an older version that are not sealed yet, because the key of this "
               "installation is not there. Bring it back first.")
                .arg(QDir::toNativeSeparators(m_file)));
        return false;
    }
    if (log->site().isEmpty() && (log->isReplaced() || !log->isTold())) {
        say(stderr, tr("The history of \"%1\" does not tell how everything in it came: it is older than the "
                       "history, or a backup was restored into it. Such a file cannot be shared; import its "
                       "cameras into a new one.")
                        .arg(QDir::toNativeSeparators(m_file)));
        return false;
    }
    return true;
}

bool ShareCommand::fits(const SiteGreeting& greeting)
{
    StoreError error;
    const std::unique_ptr<SharedLog> log = SharedLog::open(m_file, &SiteSharing::describe, &error);
    if (!log) {
        say(stderr, error.message);
        return false;
    }
    if (!greeting.mayWrite) {
        say(stderr, tr("You may not change the site \"%1\". Ask its administrator for the role ko_editor.")
                        .arg(SiteAddress::shown(m_address)));
        return false;
    }
    if (log->site().isEmpty() ? greeting.number == 0 : log->site() == greeting.site)
        return true;
    say(stderr, log->site().isEmpty()
                    ? tr("The site \"%1\" is not empty.").arg(SiteAddress::shown(m_address))
                    : tr("\"%1\" belongs to another site than \"%2\".")
                          .arg(QDir::toNativeSeparators(m_file), SiteAddress::shown(m_address)));
    return false;
}

/// Before anything is sent: no password goes to the server under a key that other desks have not got.
bool ShareCommand::hasKey(const SiteGreeting& greeting)
{
    if (SiteKeyPrompt::onLine(m_address, greeting.site, true))
        return true;
    StoreError error;
    const std::unique_ptr<SharedLog> log = SharedLog::open(m_file, &SiteSharing::describe, &error);
    if (!log)
        throw StoreFailure{error};
    if (!log->hasPasswords())
        return true;
    say(stderr, tr("\"%1\" has passwords, which take the key of the site. Nothing was sent.")
                    .arg(QDir::toNativeSeparators(m_file)));
    return false;
}

/// Others may be at work on both already.
bool ShareCommand::verify()
{
    StoreError error;
    const std::unique_ptr<SharedLog> log = SharedLog::open(m_file, &SiteSharing::describe, &error);
    if (!log)
        throw StoreFailure{error};
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        SiteConnection connection;
        if (const SharingFailure failure = connection.open(m_address)) {
            say(stderr, SharingWords::failure(failure, m_address));
            return false;
        }
        SiteVerification verification(*log, connection, [](qint64) { return true; });
        const SiteVerification::Verdict verdict = verification.run();
        if (verdict == SiteVerification::Verdict::Same) {
            say(stdout, tr("%n row(s) with their history are at \"%1\", and the same there as here.", nullptr,
                           int(verification.rows()))
                            .arg(SiteAddress::shown(m_address)));
            return true;
        }
        if (verdict == SiteVerification::Verdict::Different) {
            say(stderr, tr("The site differs from the file: %1")
                            .arg(OutsideText::visible(verification.difference())));
            return false;
        }
        if (verdict == SiteVerification::Verdict::Failed) {
            say(stderr, SharingWords::failure(verification.failure(), m_address));
            return false;
        }
        if (!m_opening.catchUp(m_file, patience))
            return false;
    }
    say(stderr, tr("The file or the site changes all the time, so they could not be compared."));
    return false;
}

} // namespace ko
