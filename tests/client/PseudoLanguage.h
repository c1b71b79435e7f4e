#ifndef TESTS_CLIENT_PSEUDOLANGUAGE_H
#define TESTS_CLIENT_PSEUDOLANGUAGE_H

#include <QCoreApplication>
#include <QFile>
#include <QSet>
#include <QTranslator>
#include <QXmlStreamReader>

namespace testsupport {

/// A language in which every text of the translators' files is marked and 40 % longer, from construction to
/// destruction. A text that no file holds stays as it is: nobody could translate it.
class PseudoLanguage : public QTranslator
{
public:
    static QChar mark() { return QChar(0xab); }

    PseudoLanguage()
    {
        for (const char* room : {"nodeui", "host", "client"})
            read(QStringLiteral(KO_SOURCE_DIR "/%1/translations/%1_de.ts").arg(QLatin1String(room)));
        QCoreApplication::installTranslator(this);
    }
    ~PseudoLanguage() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }

    QString translate(const char* context, const char* text, const char*, int) const override
    {
        const QString original = QString::fromUtf8(text);
        if (!m_known.contains(QString::fromUtf8(context) + QLatin1Char('\n') + original))
            return QString();
        const bool hasWords =
            std::any_of(original.begin(), original.end(), [](QChar c) { return c.isLetter(); }) &&
            original != QLatin1String("<br>");
        if (!hasWords)
            return original;
        QString end(int(original.size()) * 2 / 5, QLatin1Char('n'));
        for (int i = LongestWord; i + 1 < end.size(); i += LongestWord + 1)
            end[i] = QLatin1Char(' '); // what is wrapped needs places for that
        int at = int(original.size());
        while (at > 0 && QStringLiteral(".: >").contains(original.at(at - 1)))
            --at; // the end stays what it is
        if (original.endsWith(QLatin1Char('>')))
            at = int(original.lastIndexOf(QLatin1Char('<')));
        return QString(original).insert(at, end).insert(original.startsWith(QLatin1Char(' ')) ? 1 : 0,
                                                        mark());
    }

    const QSet<QString>& known() const { return m_known; }

private:
    enum { LongestWord = 20 }; // letters, of what is added

    void read(const QString& fileName)
    {
        QFile file(fileName);
        if (!file.open(QIODevice::ReadOnly))
            qFatal("%s", qPrintable(fileName));
        QXmlStreamReader xml(&file);
        QString context;
        while (!xml.atEnd()) {
            if (xml.readNext() != QXmlStreamReader::StartElement)
                continue;
            if (xml.name() == QLatin1String("name"))
                context = xml.readElementText();
            else if (xml.name() == QLatin1String("source"))
                m_known.insert(context + QLatin1Char('\n') + xml.readElementText());
        }
    }

    QSet<QString> m_known; ///< context and text, each on a line
};

} // namespace testsupport

#endif
