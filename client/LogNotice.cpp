#include "LogNotice.h"

#include "HandOver.h"
#include "PlainMessageBox.h"
#include "database/HostNodeDB.h"
#include "ko/LogQt.h"
#include "store/LogCheckpoint.h"
#include "store/NodeStore.h"
#include "utils/Retranslation.h"

namespace ko {

namespace {

const int StartDelay = 2000;    // ms: the window comes first
const int KeepInterval = 60000; // ms
const int MostListed = 10;

} // namespace

LogNotice::LogNotice(const HostNodeDB& db, QWidget* parent)
    : QToolButton(parent)
    , m_file(db.fileName())
{
    setObjectName(QStringLiteral("logNotice"));
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    setVisible(false);
    connect(this, &QToolButton::clicked, this, &LogNotice::showFindings);
    setTranslated(this, [this] { retranslate(); });
    QTimer::singleShot(StartDelay, this, &LogNotice::verify);
    connect(&m_timer, &QTimer::timeout, this, &LogNotice::keepEnd);
}

LogNotice::~LogNotice()
{
    m_isEnding = true;
    if (m_verification.valid())
        m_verification.wait();
    keepEnd();
}

void LogNotice::verify()
{
    m_verification = std::async(std::launch::async, [this] {
        StoreError error;
        const auto goOn = [this](qint64) { return !m_isEnding; };
        const std::optional<LogReport> report =
            NodeStore::verifyLogs(m_file, LogCheckpoint::read(m_file), goOn, &error);
        handOver(this, [this, report, error] { take(report, error); });
    });
}

void LogNotice::take(const std::optional<LogReport>& report, const StoreError& error)
{
    if (!report) {
        LogQt::line(LogQt::Warning, QString::fromLatin1("The logs cannot be followed: %1").arg(error.detail));
        return;
    }
    m_findings = report->findings;
    for (const LogFinding& finding : std::as_const(m_findings))
        LogQt::line(LogQt::Error, finding.text());
    m_isGood = m_findings.isEmpty();
    keepEnd();
    m_timer.start(KeepInterval);
    retranslate();
    setVisible(!m_isGood);
}

/// What is altered stays so for the next start.
void LogNotice::keepEnd() const
{
    const LogEnd end = m_isGood ? NodeStore::endOfLogs(m_file) : LogEnd();
    if (!end.log.isEmpty() && !LogCheckpoint::write(m_file, end))
        LogQt::line(LogQt::Warning,
                    QString::fromLatin1("Cannot be written: %1").arg(LogCheckpoint::fileFor(m_file)));
}

void LogNotice::retranslate()
{
    setText(tr("The log was altered"));
    setToolTip(m_findings.isEmpty() ? QString() : m_findings.constFirst().text());
}

void LogNotice::showFindings()
{
    QStringList lines;
    const int listed = qMin(MostListed, int(m_findings.size()));
    for (int i = 0; i < listed; ++i)
        lines.append(m_findings.at(i).text());
    if (m_findings.size() > listed)
        lines.append(
            tr("And %n more; koclient --verify-log names them.", nullptr, int(m_findings.size()) - listed));
    PlainMessageBox::ask(QMessageBox::Warning, window(), tr("The log was altered"),
                         tr("Somebody has altered the log of the node database with another program:") +
                             QStringLiteral("\n\n") + lines.join(QLatin1Char('\n')));
}

} // namespace ko
