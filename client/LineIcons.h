#ifndef KO_LINEICONS_H
#define KO_LINEICONS_H

#include <QIcon>

class QString;

namespace ko {

/// The icon \a name of the desktop's theme. A desktop without a theme, or whose theme lacks it, gets a symbol
/// of our own, drawn in the colour of the palette's text and sharp at any size; a null icon if there is none
/// of this name either.
///
/// \a name is one of those by which desktops agree to call their icons, such as "list-add".
QIcon themeIcon(const QString& name);

} // namespace ko

#endif
