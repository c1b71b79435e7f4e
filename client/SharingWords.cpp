#include "SharingWords.h"

#include "ko/OutsideText.h"
#include "sharing/SiteAddress.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <iterator>

namespace ko {

namespace SharingWords {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(SharingWords)
};

/// %1 is the site.
const struct
{
    SharingState::Reason reason;
    const char* text;
} reasons[] = {
    {SharingState::NoReason, ""},
    {SharingState::OtherSite,
     QT_TRANSLATE_NOOP(
         "SharingWords",
         "There is now another site at \"%1\" than the one this is a copy of. Nothing was sent to it. If the "
         "server was set up anew, ask its administrator to bring the site back.")},
    {SharingState::NoSite,
     QT_TRANSLATE_NOOP(
         "SharingWords",
         "The database \"%1\" holds no site, or you may not read it. Ask its administrator for the role "
         "ko_viewer or ko_editor; an empty database becomes a site by koclient --share.")},
    {SharingState::OtherVersion,
     QT_TRANSLATE_NOOP("SharingWords",
                       "The site \"%1\" was made by another version of this program. Install that "
                       "version on this computer, or have the site brought up to date.")},
    {SharingState::MayNotWrite,
     QT_TRANSLATE_NOOP("SharingWords",
                       "You may only read the site \"%1\", but there are changes on this computer that "
                       "it has not got. Ask its administrator for the role ko_editor.")},
    {SharingState::Rewritten,
     QT_TRANSLATE_NOOP("SharingWords",
                       "The site \"%1\" gives another account of its past than it gave before: its history "
                       "was altered on the server. Nothing more is sent to it or taken from it. Show this to "
                       "its administrator; the copy on this computer has the history as it was.")},
    {SharingState::Replaced,
     QT_TRANSLATE_NOOP("SharingWords",
                       "A backup was restored into this copy of the site \"%1\", which other desks "
                       "cannot be told. It is not shared any more.")},
    {SharingState::FileFailed,
     QT_TRANSLATE_NOOP("SharingWords",
                       "The copy of the site \"%1\" on this computer cannot be read or written. Check that "
                       "its disk works and has room, and start the program again.")},
    {SharingState::ServerSaid,
     QT_TRANSLATE_NOOP("SharingWords",
                       "The server of the site \"%1\" refused a request from this computer. Changes it "
                       "has not received yet are kept here. Show its administrator what the server said, "
                       "and start the program again when the problem is fixed.")},
};

QString numberOf(qint64 number)
{
    return QLocale().toString(number);
}

/// The server's own words come last: they are in its language.
QString withDetail(const QString& text, const QString& detail)
{
    return detail.isEmpty() ? text : text + QStringLiteral("\n\n") + OutsideText::fit(detail);
}

QString timeOf(const QDateTime& since)
{
    const QDateTime now = QDateTime::currentDateTime();
    return since.date() == now.date() ? QLocale().toString(since.time(), QLocale::ShortFormat)
                                      : QLocale().toString(since, QLocale::ShortFormat);
}

} // namespace

bool needsDecision(const SharingState& state)
{
    return state.kind == SharingState::Refused;
}

QString brief(const SharingState& state, const QDateTime& since)
{
    switch (state.kind) {
    case SharingState::Refused:
        return Texts::tr("Not shared any more...");
    case SharingState::UpToDate:
        return state.rights == SharingState::MayRead ? Texts::tr("Connected, read-only")
                                                     : Texts::tr("Connected");
    case SharingState::CatchingUp:
        return state.waiting > 0 ? Texts::tr("Sending %n change(s)", nullptr, int(state.waiting))
                                 : Texts::tr("Catching up");
    case SharingState::Away:
        break;
    }
    return state.waiting > 0
               ? Texts::tr("Server away since %1, %n change(s) waiting", nullptr, int(state.waiting))
                     .arg(timeOf(since))
               : Texts::tr("Server away since %1").arg(timeOf(since));
}

QString full(const SharingState& state, const QString& address)
{
    const QString site = SiteAddress::shown(address);
    if (state.kind == SharingState::Refused) {
        const auto found = std::find_if(std::begin(reasons), std::end(reasons),
                                        [&state](const auto& each) { return each.reason == state.reason; });
        return withDetail(Texts::tr(found->text).arg(site), state.text);
    }
    if (state.kind == SharingState::Away)
        return withDetail(
            Texts::tr("The server of the site \"%1\" cannot be reached. You can go on: what you change "
                      "waits on this computer and is sent when the server is back.")
                .arg(site),
            state.text);
    return state.rights == SharingState::MayRead
               ? Texts::tr("You see the site \"%1\" as others change it, and may not change it yourself.")
                     .arg(site)
               : Texts::tr("You share the site \"%1\" with others.").arg(site);
}

QString failure(const SharingFailure& failure, const QString& address)
{
    if (failure.kind == SharingFailure::Away)
        return withDetail(Texts::tr("The site \"%1\" cannot be reached.").arg(SiteAddress::shown(address)),
                          failure.message);
    SharingState state;
    state.kind = SharingState::Refused;
    state.reason = failure.kind == SharingFailure::NoSite ? SharingState::NoSite : SharingState::ServerSaid;
    state.text = failure.message;
    return full(state, address);
}

QString progress(const SharingState& state)
{
    if (state.kind == SharingState::Away)
        return Texts::tr("Waiting for the server...");
    return state.waiting > 0
               ? Texts::tr("Sending: %n change(s) left", nullptr, int(state.waiting))
               : Texts::tr("Receiving: %1 of %2").arg(numberOf(state.position), numberOf(state.last));
}

} // namespace SharingWords

} // namespace ko
