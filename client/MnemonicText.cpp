#include "MnemonicText.h"

#include <QKeySequence>
#include <QRegularExpression>

#include <algorithm>

namespace ko {

namespace MnemonicText {

namespace {

const QChar firstOfPictures(0x2e80); ///< from here on, scripts that are typed by way of others

bool isLetter(QChar c)
{
    return c.isLetterOrNumber() && c < firstOfPictures;
}

bool isFree(const QString& marked, const QStringList& used)
{
    return !used.contains(QKeySequence::mnemonic(marked).toString());
}

/// Before what ends the text: dots, a colon, blanks.
QString inBrackets(const QString& text, const QStringList& used)
{
    int end = int(text.size());
    while (end > 0 && QStringLiteral(".: ").contains(text.at(end - 1)))
        --end;
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        QString marked = QString(text).insert(end, QStringLiteral("(&%1)").arg(QLatin1Char(letter)));
        if (isFree(marked, used))
            return marked;
    }
    return text;
}

} // namespace

QString with(const QString& text, const QStringList& used)
{
    if (std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter() && c >= firstOfPictures; }))
        return inBrackets(text, used);
    for (const bool atBegin : {true, false}) {
        for (int i = 0; i < text.size(); ++i) {
            const bool begins = i == 0 || !text.at(i - 1).isLetterOrNumber();
            if (!isLetter(text.at(i)) || begins != atBegin)
                continue;
            QString marked = QString(text).insert(i, QLatin1Char('&'));
            if (isFree(marked, used))
                return marked;
        }
    }
    return text;
}

QString literal(QString text)
{
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

QString without(const QString& text)
{
    static const QRegularExpression brackets(QStringLiteral("\\(&\\w\\)"));
    QString plain = QString(text).remove(brackets);
    for (int i = 0; i < plain.size(); ++i) {
        if (plain.at(i) == QLatin1Char('&') && plain.mid(i, 2) != QLatin1String("&&"))
            return plain.remove(i, 1);
        if (plain.at(i) == QLatin1Char('&'))
            ++i;
    }
    return plain;
}

} // namespace MnemonicText

} // namespace ko
