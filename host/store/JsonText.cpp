#include "store/JsonText.h"

#include <QJsonArray>
#include <QLocale>

#include <cmath>

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

QString list(const QStringList& texts)
{
    return compact(QJsonDocument(QJsonArray::fromStringList(texts)));
}

} // namespace JsonText

} // namespace ko
