#include "support/TestMain.h"

#include "ko/OutsideText.h"
#include "ko/Terminal.h"

#include <QTemporaryFile>

using namespace ko;

class tst_OutsideText : public QObject
{
    Q_OBJECT

private slots:
    void texts_data();
    void texts();
    void nothingIsLeftToTakeAway();
    void terminalTakesOneLine();
};

void tst_OutsideText::texts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("fit");
    QTest::addColumn<QString>("visible");
    const auto row = [](const char* name, const QString& text, const QString& fit, const QString& visible) {
        QTest::newRow(name) << text << fit << visible;
    };
    const auto same = [](const char* name, const QString& text) {
        QTest::newRow(name) << text << text << text;
    };
    const auto u = [](const char16_t* text) { return QString::fromUtf16(text); };

    same("empty", "");
    same("plain", " Gate \\ 3 ");
    same("other scripts", u(u"Tür, Ворота, 大门, بوابة"));
    same("outside the basic plane", u(u"\U0001f4f7 \U00020000"));
    row("line break", "a\nb", "a\nb", "a\\nb");
    row("tab and CR", "a\tb\r", "a b ", "a\\tb\\r");
    row("escape sequence", "a\x1b[31m\x7f", "a[31m", "a\\x1b[31m\\x7f");
    row("C1 control", u(u"a\u009b"), "a", "a\\x9b");
    row("next line", u(u"a\u0085b"), "a b", "a\\x85b");
    row("NUL", QString("a") + QChar(0), "a", "a\\x00");
    row("override", u(u"a\u202egpj.exe\u202c"), "agpj.exe", "a\\u202egpj.exe\\u202c");
    row("isolate", u(u"\u2066a\u2069"), "a", "\\u2066a\\u2069");
    row("marks of direction", u(u"a\u200eb\u200f\u061c"), "ab", "a\\u200eb\\u200f\\u061c");
    row("zero width", u(u"a\u200bb\u2060\ufeff"), "ab", "a\\u200bb\\u2060\\ufeff");
    row("soft hyphen", u(u"a\u00adb"), "ab", "a\\xadb");
    row("separators", u(u"a\u2028b\u2029c"), "a b c", "a\\u2028b\\u2029c");
    row("tags", u(u"a\U000e0041"), "a", "a\\U000e0041");
    row("filler", u(u"\u3164"), "", "\\u3164");
    row("private", u(u"a\ue000\U000f0000"), "a", "a\\ue000\\U000f0000");
    row("no characters", u(u"a\uffff\ufdd0"), "a", "a\\uffff\\ufdd0");
    row("halves", QString("a") + QChar(0xd83d) + 'b' + QChar(0xdcf7), "ab", "a\\ud83db\\xf7");
    same("assigned later", u(u"\U0001fae0"));

    same("non-joiner in Persian", u(u"می\u200cخواهم"));
    same("joiner in Sinhala", u(u"ශ\u0dca\u200dරී"));
    same("family", u(u"\U0001f468\u200d\U0001f469\u200d\U0001f467"));
    same("skin", u(u"\U0001f469\U0001f3fd\u200d\U0001f4bb"));
    same("heart on fire", u(u"\u2764\ufe0f\u200d\U0001f525"));
    same("variant of an ideograph", u(u"葛\U000e0100"));
    row("joiner in Latin", u(u"Ga\u200dte\u200c"), "Gate", "Ga\\u200dte\\u200c");
    row("joiner in Cyrillic", u(u"Во\u200dрота"), u(u"Ворота"), u(u"Во\\u200dрота"));
    row("joiner at the beginning", u(u"\u200cخ"), u(u"خ"), u(u"\\u200cخ"));
    row("joiner twice", u(u"خ\u200c\u200cخ"), u(u"خ\u200cخ"), u(u"خ\u200c\\u200cخ"));
    row("joiner behind a blank", u(u"خ \u200d"), u(u"خ "), u(u"خ \\u200d"));
    row("selector in Latin", u(u"a\ufe0f"), "a", "a\\ufe0f");
}

void tst_OutsideText::texts()
{
    QFETCH(QString, text);
    QTEST(OutsideText::fit(text), "fit");
    QTEST(OutsideText::visible(text), "visible");
}

/// Of any single character: what is fit stays, and what is visible is too.
void tst_OutsideText::nothingIsLeftToTakeAway()
{
    for (uint code = 0; code < 0x110000; ++code) {
        QString text(QLatin1String("a"));
        if (code > 0xffff)
            text += QChar(QChar::highSurrogate(code));
        text += QChar(code > 0xffff ? QChar::lowSurrogate(code) : ushort(code));
        const QString fit = OutsideText::fit(text);
        const QString visible = OutsideText::visible(text);
        if (OutsideText::fit(fit) != fit || OutsideText::visible(visible) != visible ||
            OutsideText::fit(visible) != visible || (visible == text) != (fit == text && code != '\n'))
            QFAIL(qPrintable(QString::number(code, 16)));
    }
}

void tst_OutsideText::terminalTakesOneLine()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    FILE* stream = std::fopen(QFile::encodeName(file.fileName()).constData(), "w");
    QVERIFY(stream);
    Terminal::say(stream, QString::fromUtf8("Tür \x1b]0;x\x07\nand\r"
                                            "100 %s"));
    std::fclose(stream);
    QCOMPARE(file.readAll(), QByteArray("Tür \\x1b]0;x\\x07\\nand\\r100 %s\n"));
}

KO_TEST_MAIN(tst_OutsideText)
#include "tst_outsidetext.moc"
