#ifndef KO_PICTUREREADER_H
#define KO_PICTUREREADER_H

#include "HostExport.h"

#include <QByteArray>
#include <QImage>

namespace ko {

/// Reads pictures that devices send, at a cost that is bounded whatever they are. JPEG only: it is what they
/// send, and each reader more of the toolkit could be led astray.
namespace PictureReader {

enum Limits {
    LongestPicture = 8 << 20, ///< bytes
    LongestSide = 16384,      ///< pixels
    MostPixels = 40000000,    ///< 8K has 33 million
    MostScans = 32,           ///< a picture that comes in steps has ten or so
    ShownWidth = 640,         ///< what is read is no larger
    ShownHeight = 480
};

/// Null when it is none, or beyond Limits. Takes two seconds and some 150 MiB at worst. May be called in any
/// thread.
KO_HOST_EXPORT QImage read(const QByteArray& jpeg);

} // namespace PictureReader

} // namespace ko

#endif
