#include "exchange/FileName.h"

#include "ko/OutsideText.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>

namespace ko {

namespace FileName {

namespace {

const ushort FirstByte = 0xdc80;
const ushort LastByte = 0xdcff;

bool isByte(QChar c)
{
    return c.unicode() >= FirstByte && c.unicode() <= LastByte;
}

bool isText(const QString& name)
{
    return QFile::decodeName(QFile::encodeName(name)) == name;
}

} // namespace

QString fromBytes(const QByteArray& bytes)
{
    QString text = QFile::decodeName(bytes);
    if (QFile::encodeName(text) == bytes)
        return text;
    QString name;
    for (const char byte : bytes)
        name += uchar(byte) < 0x80 ? QChar(ushort(byte)) : QChar(ushort(0xdc00 + uchar(byte)));
    return name;
}

QByteArray toBytes(const QString& name)
{
    if (isText(name) || std::none_of(name.begin(), name.end(), isByte))
        return QFile::encodeName(name);
    QByteArray bytes;
    for (const QChar c : name)
        bytes += isByte(c) ? QByteArray(1, char(c.unicode() - 0xdc00)) : QFile::encodeName(QString(c));
    return bytes;
}

QString refusal(const QString& name)
{
    const bool wasReplaced = name.contains(QChar(QChar::ReplacementCharacter)) && !QFile::exists(name);
    if (isText(name) && !wasReplaced)
        return QString();
    return QCoreApplication::translate("FileName", "The file \"%1\" cannot be used: its name is not text in "
                                                   "the encoding of this system. Rename it.")
        .arg(OutsideText::visible(name));
}

} // namespace FileName

} // namespace ko
