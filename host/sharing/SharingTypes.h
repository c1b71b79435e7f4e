#ifndef KO_SHARINGTYPES_H
#define KO_SHARINGTYPES_H

#include "HostExport.h"
#include "model/SharedParcel.h"

#include <QMetaType>

namespace ko {

/// What a site says of itself when a desk connects.
struct SiteGreeting
{
    QString site;      ///< its identifier
    int version = 0;   ///< of its tables
    qint64 number = 0; ///< of its last parcel
    bool mayWrite = false;
};

/// Why something did not reach the site, as a value.
struct SharingFailure
{
    enum Kind {
        None,
        Away,    ///< no connection, or it was lost: to be tried again
        Refused, ///< the site does not want it, and will not when it is asked again
        NoSite   ///< the database has no tables of a site, or not for this user
    };
    Kind kind = None;
    QString message; ///< what the server or the library said, in its words

    explicit operator bool() const { return kind != None; }
};

/// How a desk and its site are with each other.
struct SharingState
{
    enum Kind {
        Away,       ///< the site cannot be reached; the desk works on and its changes wait
        CatchingUp, ///< changes are on their way, in one direction or both
        UpToDate,
        Refused ///< for a reason that does not pass by itself
    };
    enum Reason {
        NoReason,
        OtherSite,    ///< the file belongs to another one
        NoSite,       ///< there are no tables of a site, or not for this user
        OtherVersion, ///< the site is one of another version of this program
        MayNotWrite,  ///< there are changes here, and the user may only read
        Rewritten,    ///< the site tells of its past otherwise than it told before
        Replaced,     ///< a backup took the place of everything in the file
        FileFailed,   ///< the desk's own file cannot be read or written
        ServerSaid    ///< see text
    };
    /// Of the user, as the site said when the desk connected last.
    enum Rights { UnknownRights, MayRead, MayWrite };

    Kind kind = Away;
    Reason reason = NoReason;
    QString text; ///< what server or store said, untranslated
    Rights rights = UnknownRights;
    qint64 waiting = 0;  ///< lines that the site has not got, as far as the file was looked through
    qint64 position = 0; ///< of the site's parcels, the last that is in the file
    qint64 last = 0;     ///< of the site's parcels, the last that is known of

    friend bool operator==(const SharingState& a, const SharingState& b)
    {
        return a.kind == b.kind && a.reason == b.reason && a.text == b.text && a.rights == b.rights &&
               a.waiting == b.waiting && a.position == b.position && a.last == b.last;
    }
};

} // namespace ko

Q_DECLARE_METATYPE(ko::SharingState)

#endif
