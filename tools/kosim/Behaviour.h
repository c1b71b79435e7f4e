#ifndef KOSIM_BEHAVIOUR_H
#define KOSIM_BEHAVIOUR_H

#include <QString>
#include <QStringList>

namespace kosim {

/// How a device answers over ONVIF.
enum class Behaviour {
    Digest,     ///< asks for HTTP digest
    Token,      ///< wants a UsernameToken, as older devices do
    WrongClock, ///< wants a UsernameToken of its own time, which is three hours and two minutes late
    Open,       ///< asks for no password
    Basic,      ///< asks for the password in the clear
    Locks,      ///< locks the account after three wrong passwords
    Slow,       ///< takes two seconds for each answer
    Foreign,    ///< asks for the password of another device's realm
    Lying,      ///< has another serial number each time
    // Good devices with bad pictures.
    DotPicture,       ///< of one pixel
    HugePicture,      ///< says that it has 60,000 x 60,000
    ScansPicture,     ///< has thousands of scans
    EndlessPicture,   ///< announces a gigabyte, and goes on after it
    NoisePicture,     ///< begins like one and is none
    PagePicture,      ///< a web page
    ElsewherePicture, ///< is to be fetched from another host
    RealmPicture,     ///< wants the password of another realm than the device
    // From here on no ONVIF is spoken.
    Silent,  ///< takes the request and never answers
    Broken,  ///< answers with half a message
    Web,     ///< has a web page and no ONVIF
    Bomb,    ///< sends entities that grow to gigabytes
    Tag,     ///< sends a tag with a hundred thousand attributes
    Endless, ///< sends a body without an end
    Redirect ///< sends the client to another host
};

/// Its name on the command line; false when there is none.
bool behaviourOf(const QString& name, Behaviour& behaviour);
QStringList behaviourNames();

/// What --hostile-every chooses from in turn.
Behaviour hostileBehaviour(int number);

} // namespace kosim

#endif
