#include "SiteKeyWords.h"

#include "SharingWords.h"

#include <QCoreApplication>

namespace ko {

namespace SiteKeyWords {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(SiteKeyWords)
};

} // namespace

QString text(const SiteKeyOutcome& outcome, const QString& address)
{
    switch (outcome.kind) {
    case SiteKeyOutcome::Done:
        return outcome.isNotKept
                   ? Texts::tr(
                         "The key cannot be kept on this computer, because the key of this installation "
                         "is not there. You are asked for the passphrase again next time.")
                   : QString();
    case SiteKeyOutcome::WrongPassphrase:
        return Texts::tr("That is not the passphrase of the site.");
    case SiteKeyOutcome::TooShort:
        return Texts::tr("A passphrase needs at least %n character(s).", nullptr,
                         KeyEnvelope::ShortestPassphrase);
    case SiteKeyOutcome::NoKey:
        return Texts::tr("The site has no key yet.");
    case SiteKeyOutcome::SomebodyElse:
        return Texts::tr(
            "Somebody else has just changed the key or its passphrase. Ask which passphrase is valid now.");
    case SiteKeyOutcome::Unusable:
        return Texts::tr("Opening the key takes more memory than this computer has or may be asked for.");
    case SiteKeyOutcome::Failed:
        break;
    }
    return SharingWords::failure(outcome.failure, address);
}

QString missing(const SiteKeyOutcome& seen)
{
    if (!seen.record.hasTables)
        return Texts::tr("This site was made before its desks shared a key. Passwords cannot be stored until "
                         "its administrator brings it up to date by koclient --share.");
    return seen.record.hasKey()
               ? Texts::tr(
                     "This computer does not have the key of the passwords. They are shown empty, and new "
                     "ones cannot be stored, until you give the passphrase of the site.")
               : Texts::tr("The site has no key yet with which its desks seal passwords. New ones cannot be "
                           "stored until somebody makes it.");
}

} // namespace SiteKeyWords

} // namespace ko
