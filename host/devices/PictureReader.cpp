#include "devices/PictureReader.h"

#include <QBuffer>
#include <QImageReader>

namespace ko {

namespace PictureReader {

namespace {

bool isBounded(const QSize& size)
{
    return size.width() > 0 && size.height() > 0 && size.width() <= LongestSide &&
           size.height() <= LongestSide && qint64(size.width()) * size.height() <= MostPixels;
}

/// Each goes over the whole picture: some megabytes of them take hours. Within the data of one these bytes do
/// not follow each other.
bool hasFewScans(const QByteArray& jpeg)
{
    return jpeg.count("\xff\xda") <= MostScans;
}

} // namespace

QImage read(const QByteArray& jpeg)
{
    if (jpeg.size() > LongestPicture || !jpeg.startsWith("\xff\xd8") || !hasFewScans(jpeg))
        return QImage();
    QByteArray bytes = jpeg;
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, "jpeg");
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(true);
    const QSize size = reader.size(); // from the header
    if (!isBounded(size))
        return QImage();
    const QSize shown(ShownWidth, ShownHeight);
    if (size.width() > ShownWidth || size.height() > ShownHeight)
        reader.setScaledSize(size.scaled(shown, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
    const QImage image = reader.read();
    return image.isNull() ? QImage() : image.convertToFormat(QImage::Format_RGB32);
}

} // namespace PictureReader

} // namespace ko
