#include "secrets/Keychain.h"

#include <QEventLoop>
#include <QTimer>

#if QT_VERSION >= 0x060000
#include <qt6keychain/keychain.h>
#else
#include <qt5keychain/keychain.h>
#endif

#include <memory>

namespace ko {

namespace {

struct Outcome
{
    bool finished = false;
    QKeychain::Error error = QKeychain::OtherError;
    QString text;
};

/// A job that nobody waits for any more goes on by itself: the keychain may still answer into it.
Outcome run(QKeychain::Job* job, int patience)
{
    const auto outcome = std::make_shared<Outcome>();
    QEventLoop loop;
    job->setAutoDelete(true);
    job->setInsecureFallback(false);
    job->setKey(QStringLiteral("installation key"));
    QObject::connect(job, &QKeychain::Job::finished, &loop, [outcome, &loop](QKeychain::Job* done) {
        outcome->finished = true;
        outcome->error = done->error();
        if (const auto* reader = qobject_cast<QKeychain::ReadPasswordJob*>(done))
            outcome->text = reader->textData();
        loop.quit();
    });
    QTimer timer;
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    timer.start(patience);
    job->start();
    if (!outcome->finished)
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    return *outcome;
}

} // namespace

Keychain::Keychain(const QString& service, int patience)
    : m_service(service)
    , m_patience(patience)
{
}

Keychain::Answer Keychain::read(QString* text) const
{
    const Outcome outcome = run(new QKeychain::ReadPasswordJob(m_service), m_patience);
    *text = outcome.text;
    if (outcome.finished && outcome.error == QKeychain::EntryNotFound)
        return NoEntry;
    return outcome.finished && outcome.error == QKeychain::NoError ? Found : NotThere;
}

bool Keychain::write(const QString& text) const
{
    auto* job = new QKeychain::WritePasswordJob(m_service);
    job->setTextData(text);
    const Outcome outcome = run(job, m_patience);
    return outcome.finished && outcome.error == QKeychain::NoError;
}

} // namespace ko
