#include "Snapshot.h"

#include <QBuffer>
#include <QColor>
#include <QDateTime>
#include <QImage>
#include <QImageWriter>
#include <QPainter>

namespace kosim {

namespace Snapshot {

namespace {

const QSize Large(1920, 1080); // of the first profile
const QSize Small(640, 360);   // of the second

QByteArray jpeg(const QImage& image, bool isProgressive = false)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpeg");
    writer.setProgressiveScanWrite(isProgressive);
    writer.write(image);
    return bytes;
}

/// A yard at dusk, in a colour of its own for each camera.
QImage scene(const Identity& identity, const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    const int hue = identity.serial.mid(2).toInt() * 47 % 360;
    image.fill(QColor::fromHsv(hue, 90, 130));
    QPainter painter(&image);
    const int line = size.height() / 9;
    painter.fillRect(0, 6 * line, size.width(), size.height(), QColor::fromHsv(hue, 110, 70));
    painter.fillRect(6 * line, 2 * line, 5 * line, 4 * line, QColor::fromHsv(hue, 60, 180));
    painter.fillRect(8 * line, 4 * line, line, 2 * line, QColor::fromHsv(hue, 130, 50));
    QFont font;
    font.setPixelSize(line);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QRect(line / 2, line / 4, size.width() - line, 2 * line), Qt::AlignLeft | Qt::AlignTop,
                     identity.name);
    font.setPixelSize(line / 2);
    painter.setFont(font);
    painter.drawText(QRect(line / 2, 7 * line, size.width() - line, line), Qt::AlignLeft | Qt::AlignVCenter,
                     QString::fromLatin1(identity.serial) + QStringLiteral("   ") +
                         QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd hh:mm:ss")));
    return image;
}

QImage plain(const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::gray);
    return image;
}

/// Says that it is 60,000 pixels wide and high.
QByteArray huge()
{
    QByteArray bytes = jpeg(plain(QSize(16, 16)));
    const int frame = int(bytes.indexOf("\xff\xc0"));
    return bytes.replace(frame + 5, 4, "\xea\x60\xea\x60");
}

/// Draws itself anew thousands of times.
QByteArray scans()
{
    const QByteArray bytes = jpeg(plain(Large), true);
    const int last = int(bytes.lastIndexOf("\xff\xda"));
    const int end = int(bytes.lastIndexOf("\xff\xd9"));
    return bytes.left(last) + bytes.mid(last, end - last).repeated(2000) + bytes.mid(end);
}

HttpReply reply(const QByteArray& type, const QByteArray& body)
{
    HttpReply reply;
    reply.type = type;
    reply.body = body;
    return reply;
}

} // namespace

HttpReply answer(Behaviour behaviour, const QByteArray& path, const Identity& identity)
{
    const bool isSmall = path == "/snapshot/P2";
    if (!isSmall && path != "/snapshot/P1") {
        HttpReply none;
        none.status = 404;
        return none;
    }
    HttpReply endless = reply("image/jpeg", jpeg(plain(Small)).left(200));
    switch (behaviour) {
    case Behaviour::DotPicture:
        return reply("image/jpeg", jpeg(plain(QSize(1, 1))));
    case Behaviour::HugePicture:
        return reply("image/jpeg", huge());
    case Behaviour::ScansPicture:
        return reply("image/jpeg", scans());
    case Behaviour::EndlessPicture:
        endless.isEndless = true;
        endless.headers = "Content-Length: 1073741824\r\n";
        return endless;
    case Behaviour::NoisePicture:
        return reply("image/jpeg", QByteArray("\xff\xd8\xff\xe0 no picture ").repeated(1000));
    case Behaviour::PagePicture:
        return reply("text/html", "<html><body><h1>Log in</h1><img src=x></body></html>");
    default:
        return reply("image/jpeg", jpeg(scene(identity, isSmall ? Small : Large)));
    }
}

} // namespace Snapshot

} // namespace kosim
