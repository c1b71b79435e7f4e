#include "support/TestMain.h"

#include "utils/NodeDBUtils.h"

#include <QRandomGenerator>

using namespace ko;

class tst_StreamValues : public QObject
{
    Q_OBJECT

private slots:
    void lists();
    void customIsNotAConversion();
    void resolutionBothWays_data();
    void resolutionBothWays();
    void resolutionFromText_data();
    void resolutionFromText();
    void resolutionWithoutText_data();
    void resolutionWithoutText();
    void framerateBothWays_data();
    void framerateBothWays();
    void framerateFromText_data();
    void framerateFromText();
    void framerateWithoutText_data();
    void framerateWithoutText();
    void qualityBothWays_data();
    void qualityBothWays();
    void qualityFromText_data();
    void qualityFromText();
    void qualityWithoutText_data();
    void qualityWithoutText();
    void anyText();
};

void tst_StreamValues::lists()
{
    QCOMPARE(NodeDBUtils::sm_Resolutions,
             QStringList({"PDA (160x120)", "CIF (320x240)", "VGA (640x480)", "SVGA (800x600)",
                          "XGA (1024x768)", "MEGA (1280x960)", "QXGA (2048x1536)"}));
    QCOMPARE(NodeDBUtils::sm_Framerates, QStringList({"Unlimited", "25.0", "20.0", "16.0", "12.0", "6.0",
                                                      "4.0", "3.0", "2.0", "1.0", "0.5", "0.25"}));
    QCOMPARE(NodeDBUtils::sm_Qualities,
             QStringList({"90%", "80%", "70%", "60%", "50%", "40%", "30%", "20%", "10%"}));
    QCOMPARE(NodeDBUtils::sm_ResCustom, QString("Custom"));
}

void tst_StreamValues::customIsNotAConversion()
{
    QVERIFY(!NodeDBUtils::sm_Resolutions.contains(NodeDBUtils::sm_ResCustom));
    QVERIFY(NodeDBUtils::ResolutionToString(-1, -1).isNull());
}

void tst_StreamValues::resolutionBothWays_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::newRow("PDA") << "PDA (160x120)" << 160 << 120;
    QTest::newRow("CIF") << "CIF (320x240)" << 320 << 240;
    QTest::newRow("VGA") << "VGA (640x480)" << 640 << 480;
    QTest::newRow("SVGA") << "SVGA (800x600)" << 800 << 600;
    QTest::newRow("XGA") << "XGA (1024x768)" << 1024 << 768;
    QTest::newRow("MEGA") << "MEGA (1280x960)" << 1280 << 960;
    QTest::newRow("QXGA") << "QXGA (2048x1536)" << 2048 << 1536;
}

void tst_StreamValues::resolutionBothWays()
{
    QFETCH(QString, text);
    int width = 0;
    int height = 0;
    NodeDBUtils::StringToResolution(text, width, height);
    QTEST(width, "width");
    QTEST(height, "height");
    QCOMPARE(NodeDBUtils::ResolutionToString(width, height), text);
}

void tst_StreamValues::resolutionFromText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::newRow("in no list") << "Any text (1920x1080)" << 1920 << 1080;
    QTest::newRow("nothing before the blank") << " (12x34)" << 12 << 34;
    QTest::newRow("several blanks") << "VGA   (640x480)" << 640 << 480;
    QTest::newRow("the last of two") << "A (11x22) (33x44)" << 33 << 44;
    QTest::newRow("leading zeros") << "A (0640x0480)" << 640 << 480;
    QTest::newRow("too large a number") << "A (99999999999x480)" << 0 << 480;
    QTest::newRow("custom") << "Custom" << -1 << -1;
    QTest::newRow("empty") << "" << -1 << -1;
    QTest::newRow("no blank") << "(640x480)" << -1 << -1;
    QTest::newRow("upper-case X") << "VGA (640X480)" << -1 << -1;
    QTest::newRow("single digits") << "A (1x2)" << -1 << -1;
    QTest::newRow("one single digit") << "A (11x2)" << -1 << -1;
    QTest::newRow("blank behind") << "VGA (640x480) " << -1 << -1;
    QTest::newRow("text behind") << "VGA (640x480)p" << -1 << -1;
    QTest::newRow("no brackets") << "VGA 640x480" << -1 << -1;
    QTest::newRow("tab instead of blank") << "VGA\t(640x480)" << -1 << -1;
}

void tst_StreamValues::resolutionFromText()
{
    QFETCH(QString, text);
    int width = 7;
    int height = 8;
    NodeDBUtils::StringToResolution(text, width, height);
    QTEST(width, "width");
    QTEST(height, "height");
}

void tst_StreamValues::resolutionWithoutText_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::newRow("another height") << 640 << 481;
    QTest::newRow("another width") << 641 << 480;
    QTest::newRow("turned") << 480 << 640;
    QTest::newRow("of two entries") << 640 << 240;
    QTest::newRow("full HD") << 1920 << 1080;
    QTest::newRow("zero") << 0 << 0;
}

void tst_StreamValues::resolutionWithoutText()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QVERIFY(NodeDBUtils::ResolutionToString(width, height).isNull());
}

void tst_StreamValues::framerateBothWays_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<float>("rate");
    QTest::newRow("unlimited") << NodeDBUtils::sm_Framerates.first() << 0.0f;
    QTest::newRow("25") << "25.0" << 25.0f;
    QTest::newRow("20") << "20.0" << 20.0f;
    QTest::newRow("16") << "16.0" << 16.0f;
    QTest::newRow("12") << "12.0" << 12.0f;
    QTest::newRow("6") << "6.0" << 6.0f;
    QTest::newRow("4") << "4.0" << 4.0f;
    QTest::newRow("3") << "3.0" << 3.0f;
    QTest::newRow("2") << "2.0" << 2.0f;
    QTest::newRow("1") << "1.0" << 1.0f;
    QTest::newRow("0.5") << "0.5" << 0.5f;
    QTest::newRow("0.25") << "0.25" << 0.25f;
}

void tst_StreamValues::framerateBothWays()
{
    QFETCH(QString, text);
    QFETCH(float, rate);
    QVERIFY(NodeDBUtils::StringToFramerate(text) == rate);
    QCOMPARE(NodeDBUtils::FramerateToString(rate), text);
}

void tst_StreamValues::framerateFromText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<float>("rate");
    QTest::newRow("two characters") << "15" << 0.0f;
    QTest::newRow("any character for the point") << "125" << 125.0f;
    // The whole match is converted, and the comma is not a number.
    QTest::newRow("comma") << "3,5" << 0.0f;
    QTest::newRow("in no list") << "3.5" << 3.5f;
    QTest::newRow("within a text") << "about 7.5 fps" << 7.5f;
    QTest::newRow("letters") << "abc" << 0.0f;
    QTest::newRow("empty") << "" << 0.0f;
    QTest::newRow("unlimited in lower case") << "unlimited" << 0.0f;
    QTest::newRow("the first number") << "1.5 or 2.5" << 1.5f;
}

void tst_StreamValues::framerateFromText()
{
    QFETCH(QString, text);
    QFETCH(float, rate);
    QVERIFY(NodeDBUtils::StringToFramerate(text) == rate);
}

void tst_StreamValues::framerateWithoutText_data()
{
    QTest::addColumn<float>("rate");
    QTest::newRow("7.5") << 7.5f;
    QTest::newRow("30") << 30.0f;
    QTest::newRow("nearly 25") << 25.00001f;
    QTest::newRow("negative") << -1.0f;
}

void tst_StreamValues::framerateWithoutText()
{
    QFETCH(float, rate);
    QVERIFY(NodeDBUtils::FramerateToString(rate).isNull());
}

void tst_StreamValues::qualityBothWays_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("quality");
    for (int quality = 10; quality <= 90; quality += 10) {
        const QString text = QString::number(quality) + "%";
        QTest::newRow(qPrintable(text)) << text << quality;
    }
}

void tst_StreamValues::qualityBothWays()
{
    QFETCH(QString, text);
    QFETCH(int, quality);
    QCOMPARE(NodeDBUtils::StringToQuality(text), quality);
    QCOMPARE(NodeDBUtils::QualityToString(quality), text);
}

void tst_StreamValues::qualityFromText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("quality");
    QTest::newRow("one digit") << "5%" << -1;
    QTest::newRow("three digits") << "100%" << 0;
    QTest::newRow("no percent sign") << "50" << -1;
    QTest::newRow("in no list") << "55%" << 55;
    QTest::newRow("within a text") << "at 42% or so" << 42;
    QTest::newRow("blank before the sign") << "50 %" << -1;
    QTest::newRow("empty") << "" << -1;
}

void tst_StreamValues::qualityFromText()
{
    QFETCH(QString, text);
    QTEST(NodeDBUtils::StringToQuality(text), "quality");
}

void tst_StreamValues::qualityWithoutText_data()
{
    QTest::addColumn<int>("quality");
    QTest::newRow("55") << 55;
    QTest::newRow("100") << 100;
    QTest::newRow("0") << 0;
    QTest::newRow("-1") << -1;
}

void tst_StreamValues::qualityWithoutText()
{
    QFETCH(int, quality);
    QVERIFY(NodeDBUtils::QualityToString(quality).isNull());
}

/// Texts made of what the patterns look for: each answer is in its range, and stays the same both ways.
void tst_StreamValues::anyText()
{
    const QString alphabet = QString::fromUtf8(" ()x%.,-+0123456789eE\n\xc3\xa4\xd9\xa3");
    QRandomGenerator random(20240611);
    for (int round = 0; round < 20000; ++round) {
        QString text;
        for (int length = random.bounded(40); length > 0; --length)
            text.append(alphabet.at(random.bounded(int(alphabet.size()))));
        int width = 0;
        int height = 0;
        NodeDBUtils::StringToResolution(text, width, height);
        QVERIFY2((width == -1) == (height == -1) && width >= -1 && height >= -1, qPrintable(text));
        const float rate = NodeDBUtils::StringToFramerate(text);
        QVERIFY2(rate >= 0.0f, qPrintable(text));
        const QString rateText = NodeDBUtils::FramerateToString(rate);
        QVERIFY2(rateText.isNull() || NodeDBUtils::StringToFramerate(rateText) == rate, qPrintable(text));
        const int quality = NodeDBUtils::StringToQuality(text);
        QVERIFY2(quality >= -1 && quality <= 99, qPrintable(text));
        const QString qualityText = NodeDBUtils::QualityToString(quality);
        QVERIFY2(qualityText.isNull() || NodeDBUtils::StringToQuality(qualityText) == quality,
                 qPrintable(text));
    }
}

KO_TEST_MAIN(tst_StreamValues)
#include "tst_streamvalues.moc"
