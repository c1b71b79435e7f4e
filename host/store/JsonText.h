#ifndef KO_JSONTEXT_H
#define KO_JSONTEXT_H

#include <QJsonDocument>
#include <QString>

#include <string_view>

namespace ko {

/// Writes JSON, which takes a good part of the time of storing a change when it is built as a document first.
namespace JsonText {

/// With its quotation marks.
void appendText(QString* json, const QString& text);

/// Anything that is not finite is not a number in JSON, and becomes null.
void appendNumber(QString* json, double number);
void appendNumber(QString* json, qint64 number);

/// Without blanks.
QString compact(const QJsonDocument& document);

/// The same of a text that is JSON; both in UTF-8.
QByteArray withoutBlanks(std::string_view utf8);

/// Never null: all empty texts are one.
QString text(std::string_view utf8);

/// An array.
QString list(const QStringList& texts);

} // namespace JsonText

} // namespace ko

#endif
