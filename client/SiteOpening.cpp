#include "SiteOpening.h"

#include "KnownSites.h"
#include "PlainMessageBox.h"
#include "SharingWords.h"
#include "SiteCatchUp.h"
#include "ko/Terminal.h"
#include "sharing/SiteAddress.h"
#include "sharing/SiteCopy.h"
#include "sharing/SiteProbe.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QProgressDialog>

#include <memory>

namespace ko {

namespace {

const int lineInterval = 2000; // ms

/// A window or lines that say how far it is.
class Shown
{
public:
    Shown(SiteOpening::Way way, const QString& title, const QString& text)
    {
        if (way == SiteOpening::Way::Line)
            return;
        m_dialog =
            std::make_unique<QProgressDialog>(text, QCoreApplication::translate("LongWork", "Cancel"), 0, 0);
        m_dialog->setObjectName(QStringLiteral("siteProgress"));
        m_dialog->setWindowTitle(title);
        m_dialog->setAutoClose(false);
        m_dialog->setAutoReset(false);
        m_dialog->setMinimumDuration(0);
        m_dialog->show();
    }

    QProgressDialog* dialog() const { return m_dialog.get(); }

    void show(const SharingState& state)
    {
        const QString text = SharingWords::progress(state);
        if (m_dialog) {
            m_dialog->setLabelText(text);
            m_dialog->setMaximum(state.waiting > 0 ? 0 : int(state.last));
            m_dialog->setValue(state.waiting > 0 ? 0 : int(state.position));
        } else if (!m_sinceLine.isValid() || m_sinceLine.hasExpired(lineInterval)) {
            Terminal::say(stderr, text);
            m_sinceLine.start();
        }
    }

private:
    std::unique_ptr<QProgressDialog> m_dialog;
    QElapsedTimer m_sinceLine;
};

} // namespace

SiteOpening::SiteOpening(const QString& address, Way way)
    : m_address(address)
    , m_way(way)
{
}

void SiteOpening::tell(const QString& text) const
{
    if (m_way == Way::Line) {
        const QStringList lines = text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        for (const QString& line : lines)
            Terminal::say(stderr, line);
    } else {
        PlainMessageBox::ask(QMessageBox::Critical, nullptr, tr("Shared Database"), text);
    }
}

QString SiteOpening::file(const QString& givenUp)
{
    KnownSites::Site known = KnownSites::find(m_address);
    if (!known.id.isEmpty() && givenUp.isEmpty()) {
        const QString file = SiteCopy::fileOf(KnownSites::folder(), known.id);
        if (QFileInfo::exists(file)) {
            KnownSites::remember(known); // as the last one
            return prepare(file, known.id) ? file : QString();
        }
    }
    const std::optional<SiteGreeting> greeting = greet();
    if (!greeting)
        return QString();
    QString file = SiteCopy::fileOf(KnownSites::folder(), greeting->site);
    if ((file == givenUp && !keepAside(file)) || !prepare(file, greeting->site))
        return QString();
    if (!catchUp(file, -1) && !m_isRefusedCopy)
        return QString();
    known.id = greeting->site;
    known.mayWrite = greeting->mayWrite;
    KnownSites::remember(known);
    return file;
}

bool SiteOpening::keepAside(const QString& file)
{
    StoreError error;
    if (SiteCopy::keepAside(file, &error))
        return true;
    tell(error.message);
    return false;
}

bool SiteOpening::prepare(const QString& file, const QString& site)
{
    StoreError error;
    if (SiteCopy::prepare(file, site, &error))
        return true;
    tell(error.message);
    return false;
}

std::optional<SiteGreeting> SiteOpening::greet(bool makesSite)
{
    const Shown shown(m_way, tr("Shared Database"),
                      tr("Connecting to \"%1\"...").arg(SiteAddress::shown(m_address)));
    QEventLoop loop;
    SiteProbe probe(m_address, makesSite ? SiteProbe::Way::Prepare : SiteProbe::Way::Look);
    std::optional<SiteGreeting> greeting;
    SharingFailure failure;
    QObject::connect(&probe, &SiteProbe::done, &loop,
                     [&](const SiteGreeting& said, const SharingFailure& failed) {
                         failure = failed;
                         if (!failed)
                             greeting = said;
                         loop.quit();
                     });
    if (shown.dialog())
        QObject::connect(shown.dialog(), &QProgressDialog::canceled, &loop, &QEventLoop::quit);
    loop.exec();
    if (failure)
        tell(SharingWords::failure(failure, m_address));
    return greeting;
}

bool SiteOpening::catchUp(const QString& file, int patience)
{
    SiteCatchUp work(file, m_address, patience);
    SiteCatchUp::End end = SiteCatchUp::End::Cancelled;
    {
        Shown shown(m_way, tr("Shared Database"),
                    tr("Connecting to \"%1\"...").arg(SiteAddress::shown(m_address)));
        if (shown.dialog())
            QObject::connect(shown.dialog(), &QProgressDialog::canceled, &work, &SiteCatchUp::cancel);
        end = work.run([&shown](const SharingState& state) { shown.show(state); });
    }
    if (end == SiteCatchUp::End::Away || end == SiteCatchUp::End::Refused)
        tell(SharingWords::full(work.state(), m_address));
    m_isRefusedCopy = end == SiteCatchUp::End::Refused && work.state().position > 0;
    return end == SiteCatchUp::End::UpToDate;
}

} // namespace ko
