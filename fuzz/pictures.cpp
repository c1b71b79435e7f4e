#include "Input.h"

#include "devices/PictureReader.h"

using namespace ko;

/// Pictures of devices.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QImage image = PictureReader::read(QByteArray(reinterpret_cast<const char*>(data), int(size)));
    // One that hangs on its side is turned after it was made smaller.
    fuzz::require(image.width() <= PictureReader::ShownWidth && image.height() <= PictureReader::ShownWidth,
                  "pictures are small");
    return 0;
}
