#include "store/JsonText.h"

#include <QJsonArray>
#include <QLocale>

#include <cmath>
#include <simdjson.h>

namespace ko {

namespace JsonText {

void appendText(QString* json, const QString& text)
{
    json->append(QLatin1Char('"'));
    int done = 0;
    for (int i = 0; i < text.size(); ++i) {
        const ushort unit = text.at(i).unicode();
        if (unit >= 0x20 && unit != '"' && unit != '\\')
            continue;
        json->append(text.constData() + done, i - done);
        done = i + 1;
        if (unit < 0x20)
            json->append(QString::asprintf("\\u%04x", uint(unit)));
        else
            json->append(QLatin1Char('\\')).append(text.at(i));
    }
    json->append(text.constData() + done, text.size() - done);
    json->append(QLatin1Char('"'));
}

void appendNumber(QString* json, double number)
{
    json->append(std::isfinite(number) ? QString::number(number, 'g', QLocale::FloatingPointShortest)
                                       : QString::fromLatin1("null"));
}

void appendNumber(QString* json, qint64 number)
{
    json->append(QString::number(number));
}

QString compact(const QJsonDocument& document)
{
    return QString::fromUtf8(document.toJson(QJsonDocument::Compact));
}

QByteArray withoutBlanks(std::string_view utf8)
{
    QByteArray text(int(utf8.size()), Qt::Uninitialized);
    size_t size = 0;
    const bool isJson = simdjson::minify(utf8.data(), utf8.size(), text.data(), size) == simdjson::SUCCESS;
    text.resize(isJson ? int(size) : 0);
    return text;
}

QString text(std::string_view utf8)
{
    return utf8.empty() ? QString::fromLatin1("") : QString::fromUtf8(utf8.data(), int(utf8.size()));
}

QString list(const QStringList& texts)
{
    return compact(QJsonDocument(QJsonArray::fromStringList(texts)));
}

} // namespace JsonText

} // namespace ko
