#include "devices/DeviceAnswers.h"
#include "devices/HttpDigest.h"
#include "devices/SoapRequest.h"

#include <QTest>

using namespace ko;

namespace {

QByteArray envelope(const QByteArray& body)
{
    return R"(<?xml version="1.0"?><e:Envelope xmlns:e="http://www.w3.org/2003/05/soap-envelope" )"
           R"(xmlns:ter="http://www.onvif.org/ver10/error" xmlns:d="http://www.onvif.org/ver10/device/wsdl" )"
           R"(xmlns:m="http://www.onvif.org/ver10/media/wsdl" xmlns:t="http://www.onvif.org/ver10/schema">)"
           R"(<e:Body>)" +
           body + "</e:Body></e:Envelope>";
}

QByteArray dateAndTime(const QByteArray& date, const QByteArray& time)
{
    const auto parts = [](const QByteArray& values, const QList<QByteArray>& names) {
        QByteArray text;
        for (int i = 0; i < 3; ++i)
            text += "<t:" + names.at(i) + '>' + values.split(' ').at(i) + "</t:" + names.at(i) + '>';
        return text;
    };
    return envelope("<d:GetSystemDateAndTimeResponse><d:SystemDateAndTime><t:UTCDateTime><t:Time>" +
                    parts(time, {"Hour", "Minute", "Second"}) + "</t:Time><t:Date>" +
                    parts(date, {"Year", "Month", "Day"}) +
                    "</t:Date></t:UTCDateTime></d:SystemDateAndTime></d:GetSystemDateAndTimeResponse>");
}

QByteArray fault(const QByteArray& subcode, const QByteArray& reason)
{
    return envelope("<e:Fault><e:Code><e:Value>e:Sender</e:Value><e:Subcode><e:Value>ter:" + subcode +
                    "</e:Value></e:Subcode></e:Code><e:Reason><e:Text>" + reason +
                    "</e:Text></e:Reason></e:Fault>");
}

} // namespace

class DeviceAnswersTest : public QObject
{
    Q_OBJECT

private slots:
    void dateAndTime_data();
    void dateAndTime();
    void information();
    void networkInterfaces();
    void services();
    void profiles();
    void videoSourcesAndUris();
    void faults_data();
    void faults();
    void othersAreNoAnswers();
    void endpoints();
    void digestOfTheStandard();
    void challenges_data();
    void challenges();
    void tokenOfTheStandard();
    void requestsAreEscaped();
};

void DeviceAnswersTest::dateAndTime_data()
{
    QTest::addColumn<QByteArray>("date");
    QTest::addColumn<QByteArray>("time");
    QTest::addColumn<QDateTime>("expected");

    QTest::newRow("plain") << QByteArray("2026 2 28") << QByteArray("23 59 58")
                           << QDateTime({2026, 2, 28}, {23, 59, 58}, Qt::UTC);
    QTest::newRow("never set") << QByteArray("1970 1 1") << QByteArray("0 0 7")
                               << QDateTime({1970, 1, 1}, {0, 0, 7}, Qt::UTC);
    QTest::newRow("leap second") << QByteArray("2026 6 30") << QByteArray("23 59 60")
                                 << QDateTime({2026, 6, 30}, {23, 59, 59}, Qt::UTC);
    QTest::newRow("no day") << QByteArray("2026 2 30") << QByteArray("1 2 3") << QDateTime();
    QTest::newRow("no hour") << QByteArray("2026 2 20") << QByteArray("24 2 3") << QDateTime();
    QTest::newRow("no number") << QByteArray("2026 2 x") << QByteArray("2 2 3") << QDateTime();
    QTest::newRow("too large") << QByteArray("99999999999 2 1") << QByteArray("2 2 3") << QDateTime();
}

void DeviceAnswersTest::dateAndTime()
{
    QFETCH(QByteArray, date);
    QFETCH(QByteArray, time);
    QFETCH(QDateTime, expected);
    QDateTime utc;
    QCOMPARE(DeviceAnswers::readDateAndTime(::dateAndTime(date, time), utc), expected.isValid());
    if (expected.isValid())
        QCOMPARE(utc, expected);
}

void DeviceAnswersTest::information()
{
    DeviceFacts facts;
    QVERIFY(DeviceAnswers::readInformation(
        envelope("<d:GetDeviceInformationResponse><d:Manufacturer> A&amp;B "
                 "</d:Manufacturer><d:Model>M\xc3\xbc</d:Model>"
                 "<d:FirmwareVersion>1.2\xe2\x80\xae</d:FirmwareVersion><d:SerialNumber>S1</d:SerialNumber>"
                 "<d:SerialNumber>S2</d:SerialNumber><d:HardwareId>" +
                 QByteArray(500, 'h') + "</d:HardwareId></d:GetDeviceInformationResponse>"),
        facts));
    QCOMPARE(facts.maker, QString("A&B"));
    QCOMPARE(facts.model, QString::fromUtf8("M\xc3\xbc"));
    QCOMPARE(facts.firmware, QString("1.2"));
    QCOMPARE(facts.serial, QString("S1"));
    QCOMPARE(int(facts.hardware.size()), int(DeviceAnswers::TextLength));
}

void DeviceAnswersTest::networkInterfaces()
{
    DeviceFacts facts;
    QVERIFY(DeviceAnswers::readNetworkInterfaces(
        envelope(
            "<d:GetNetworkInterfacesResponse><d:NetworkInterfaces token='a'><t:Info><t:HwAddress>"
            "00-11-22-33-44-55</t:HwAddress></t:Info><t:IPv4><t:Config><t:LinkLocal><t:Address>169.254.1.2"
            "</t:Address></t:LinkLocal><t:FromDHCP><t:Address>10.0.0.7</t:Address></t:FromDHCP></t:Config>"
            "</t:IPv4></d:NetworkInterfaces><d:NetworkInterfaces token='b'><t:Info><t:HwAddress>none"
            "</t:HwAddress></t:Info><t:IPv4><t:Config><t:Manual><t:Address>10.0.0.7</t:Address></t:Manual>"
            "<t:Manual><t:Address>camera.example</t:Address></t:Manual></t:Config></t:IPv4>"
            "</d:NetworkInterfaces></d:GetNetworkInterfacesResponse>"),
        facts));
    QCOMPARE(facts.macAddresses, QStringList("00:11:22:33:44:55"));
    QCOMPARE(facts.addresses, (QStringList{"169.254.1.2", "10.0.0.7"}));
}

void DeviceAnswersTest::services()
{
    DeviceFacts facts;
    QVERIFY(DeviceAnswers::readServices(
        envelope(
            "<d:GetServicesResponse><d:Service><d:Namespace>http://www.onvif.org/ver10/media/wsdl</"
            "d:Namespace>"
            "<d:XAddr>http://other.example:99/onvif/Media?x#y</d:XAddr></d:Service><d:Service><d:Namespace>"
            "http://www.onvif.org/ver20/ptz/wsdl</d:Namespace></d:Service></d:GetServicesResponse>"),
        facts));
    QCOMPARE(facts.mediaPath, QString("/onvif/Media")); // the host is none of its choice
    QVERIFY(facts.hasPtz);
    QCOMPARE(int(facts.services.size()), 2);
}

void DeviceAnswersTest::profiles()
{
    const QByteArray one =
        "<m:Profiles token='P&amp;1'><t:Name>Main</t:Name><t:VideoSourceConfiguration><t:Name>no"
        "</t:Name><t:SourceToken>V1</t:SourceToken></t:VideoSourceConfiguration>"
        "<t:VideoEncoderConfiguration><t:Encoding>H264</t:Encoding><t:Resolution><t:Width>1920"
        "</t:Width><t:Height>1080</t:Height></t:Resolution><t:RateControl><t:FrameRateLimit>12.5"
        "</t:FrameRateLimit><t:BitrateLimit>4096</t:BitrateLimit></t:RateControl>"
        "</t:VideoEncoderConfiguration><t:PTZConfiguration token='z'/></m:Profiles>";
    const QByteArray two =
        "<m:Profiles token='P2'><t:VideoEncoderConfiguration><t:Resolution><t:Width>-5</t:Width>"
        "<t:Height>99999999</t:Height></t:Resolution><t:RateControl><t:FrameRateLimit>inf"
        "</t:FrameRateLimit></t:RateControl></t:VideoEncoderConfiguration></m:Profiles>";
    DeviceFacts facts;
    QVERIFY(
        DeviceAnswers::readProfiles(envelope("<m:GetProfilesResponse>" + one + two + "<m:Profiles token='" +
                                             QByteArray(65, 'x') + "'/></m:GetProfilesResponse>"),
                                    facts));
    QCOMPARE(int(facts.profiles.size()), 2);
    const DeviceProfile& first = facts.profiles.at(0);
    QCOMPARE(first.token, QString("P&1"));
    QCOMPARE(first.name, QString("Main"));
    QCOMPARE(first.source, QString("V1"));
    QCOMPARE(first.encoding, QString("H264"));
    QCOMPARE(first.resolution, QSize(1920, 1080));
    QCOMPARE(first.rate, 12.5);
    QCOMPARE(first.bitrate, 4096);
    QVERIFY(first.hasPtz);
    QCOMPARE(facts.profiles.at(1).resolution, QSize(0, 0));
    QCOMPARE(facts.profiles.at(1).rate, 0.0);
    QVERIFY(!facts.profiles.at(1).hasPtz && facts.profiles.at(1).name.isEmpty());
    facts = DeviceFacts();
    QVERIFY(DeviceAnswers::readProfiles(
        envelope("<m:GetProfilesResponse>" + QByteArray(one).repeated(200) + "</m:GetProfilesResponse>"),
        facts));
    QCOMPARE(int(facts.profiles.size()), int(DeviceAnswers::MostProfiles));
}

void DeviceAnswersTest::videoSourcesAndUris()
{
    DeviceFacts facts;
    QVERIFY(DeviceAnswers::readVideoSources(envelope("<m:GetVideoSourcesResponse><m:VideoSources "
                                                     "token='1'/><m:VideoSources token='2'><t:VideoSources/>"
                                                     "</m:VideoSources></m:GetVideoSourcesResponse>"),
                                            facts));
    QCOMPARE(facts.channels, 2);
    QString uri;
    QVERIFY(DeviceAnswers::readUri(
        envelope("<m:GetStreamUriResponse><m:MediaUri><t:Uri>rtsp://10.0.0.7/a?b=1&amp;c=2"
                 "</t:Uri></m:MediaUri></m:GetStreamUriResponse>"),
        uri));
    QCOMPARE(uri, QString("rtsp://10.0.0.7/a?b=1&c=2"));
}

void DeviceAnswersTest::faults_data()
{
    QTest::addColumn<QByteArray>("message");
    QTest::addColumn<int>("kind");

    const QByteArray old = envelope("<e:Fault><faultcode>wsse:FailedAuthentication</faultcode><faultstring>no"
                                    "</faultstring></e:Fault>");
    QTest::newRow("not authorized") << fault("NotAuthorized", "Sender not authorized")
                                    << int(DeviceFault::NotAuthorized);
    QTest::newRow("other case") << fault("notAuthorized", "") << int(DeviceFault::NotAuthorized);
    QTest::newRow("SOAP 1.1") << old << int(DeviceFault::NotAuthorized);
    QTest::newRow("locked") << fault("NotAuthorized", "The account is Locked for 300 s")
                            << int(DeviceFault::LockedOut);
    QTest::newRow("too many") << fault("NotAuthorized", "Too many failed logins")
                              << int(DeviceFault::LockedOut);
    QTest::newRow("lock of a door") << fault("InvalidArgVal", "Door locked") << int(DeviceFault::Other);
    QTest::newRow("not supported") << fault("ActionNotSupported", "no") << int(DeviceFault::NotSupported);
    QTest::newRow("none") << ::dateAndTime("2026 2 2", "1 2 3") << int(DeviceFault::None);
    QTest::newRow("no XML") << QByteArray("<html>locked</html>") << int(DeviceFault::None);
}

void DeviceAnswersTest::faults()
{
    QFETCH(QByteArray, message);
    QTEST(int(DeviceAnswers::readFault(message).kind), "kind");
}

void DeviceAnswersTest::othersAreNoAnswers()
{
    DeviceFacts facts;
    QDateTime utc;
    QString uri;
    const QByteArray other = envelope("<d:SomethingResponse><d:Model>M</d:Model></d:SomethingResponse>");
    for (const QByteArray& message : {QByteArray(), other, fault("NotAuthorized", "no")}) {
        QVERIFY(!DeviceAnswers::readDateAndTime(message, utc));
        QVERIFY(!DeviceAnswers::readEndpoint(message, facts));
        QVERIFY(!DeviceAnswers::readInformation(message, facts));
        QVERIFY(!DeviceAnswers::readNetworkInterfaces(message, facts));
        QVERIFY(!DeviceAnswers::readServices(message, facts));
        QVERIFY(!DeviceAnswers::readVideoSources(message, facts));
        QVERIFY(!DeviceAnswers::readProfiles(message, facts));
        QVERIFY(!DeviceAnswers::readUri(message, uri));
    }
}

void DeviceAnswersTest::endpoints()
{
    QCOMPARE(DeviceAnswers::endpointOf("urn:uuid:ABC-1"), QString("abc-1"));
    QCOMPARE(DeviceAnswers::endpointOf(" uuid:abc-1 "), QString("abc-1"));
    QCOMPARE(DeviceAnswers::endpointOf("abc-1"), QString("abc-1"));
}

/// The examples of RFC 2617 (without qop: as in RFC 2069, corrected) and what RFC 7616 asks for.
void DeviceAnswersTest::digestOfTheStandard()
{
    HttpDigest old(R"(Digest realm="testrealm@host.com", nonce="dcd98b7102dd2f0e8b11d0f600bfb0c093", )"
                   R"(opaque="5ccc069c403ebaf9f0171e9517f40e41")");
    QVERIFY(old.isValid());
    QCOMPARE(old.realm(), QString("testrealm@host.com"));
    const QByteArray header = old.authorization("Mufasa", "Circle Of Life", "GET", "/dir/index.html");
    QVERIFY2(header.contains(R"(response="670fd8c2df070c60b045671b8b24ff02")"), header.constData());
    QVERIFY(header.contains(R"(opaque="5ccc069c403ebaf9f0171e9517f40e41")") && !header.contains("qop"));

    HttpDigest two(R"(Digest realm="a", nonce="n1", algorithm=MD5, qop="auth-int, auth", )"
                   R"(Digest realm="b", nonce="n2", algorithm=SHA-256, qop="auth")");
    QCOMPARE(two.realm(), QString("b")); // the stronger
    QVERIFY(two.authorization("u", "p", "POST", "/").contains("nc=00000001"));
    const QByteArray second = two.authorization("u\"1\\", "p", "POST", "/");
    QVERIFY(second.contains("nc=00000002") && second.contains(R"(username="u\"1\\")"));
    QVERIFY(second.contains("algorithm=SHA-256") && !second.contains("\"p\""));
}

void DeviceAnswersTest::challenges_data()
{
    QTest::addColumn<QByteArray>("header");
    QTest::addColumn<bool>("isDigest");
    QTest::addColumn<bool>("offersBasic");

    QTest::newRow("none") << QByteArray() << false << false;
    QTest::newRow("basic") << QByteArray("Basic realm=\"x\"") << false << true;
    QTest::newRow("both") << QByteArray("Basic realm=\"a, Digest b\", Digest realm=\"x\", nonce=\"n\"")
                          << true << true;
    QTest::newRow("no nonce") << QByteArray("Digest realm=\"x\"") << false << false;
    QTest::newRow("unknown algorithm")
        << QByteArray("Digest realm=\"x\", nonce=n, algorithm=SHA-512-256") << false << false;
    QTest::newRow("body too") << QByteArray("Digest realm=\"x\", nonce=n, qop=\"auth-int\"") << false
                              << false;
    QTest::newRow("other line") << QByteArray("Digest realm=\"x\ry\", nonce=\"n\"") << false << false;
    QTest::newRow("cut off") << QByteArray("Digest realm=\"x, nonce=n") << false << false;
    QTest::newRow("stray signs") << QByteArray(",,==\"\" Digest , realm = \"x\" , nonce = n,") << true
                                 << false;
    QTest::newRow("negotiate") << QByteArray("Negotiate, Digest nonce=n,realm=x, NTLM") << true << false;
}

void DeviceAnswersTest::challenges()
{
    QFETCH(QByteArray, header);
    QTEST(HttpDigest(header).isValid(), "isDigest");
    QTEST(HttpDigest::offersBasic(header), "offersBasic");
}

/// The example of the ONVIF programmer's guide: nonce, time and password, and their digest.
void DeviceAnswersTest::tokenOfTheStandard()
{
    const QByteArray token = SoapRequest::usernameToken(
        "user", "userpassword", QDateTime::fromString("2010-09-16T07:50:45Z", Qt::ISODate),
        QByteArray::fromBase64("LKqI6G/AikKCQrN0zqZFlg=="));
    QVERIFY2(token.contains(">tuOSpGlFlIXsozq4HFNeeGeFLEI=<"), token.constData());
    QVERIFY(token.contains(">LKqI6G/AikKCQrN0zqZFlg==<") && token.contains(">2010-09-16T07:50:45Z<"));
    QVERIFY(!token.contains("userpassword"));
    const QDateTime now = QDateTime::currentDateTimeUtc();
    QVERIFY(SoapRequest::usernameToken("u", "p", now) != SoapRequest::usernameToken("u", "p", now));
}

void DeviceAnswersTest::requestsAreEscaped()
{
    const QByteArray message =
        SoapRequest::message(SoapRequest::Operation::GetStreamUri, "</o:ProfileToken>&");
    QVERIFY(message.contains("<o:ProfileToken>&lt;/o:ProfileToken&gt;&amp;</o:ProfileToken>"));
    QVERIFY(SoapRequest::usernameToken("<a>", "p", QDateTime::currentDateTimeUtc()).contains("&lt;a&gt;"));
    QVERIFY(SoapRequest::isOfMedia(SoapRequest::Operation::GetProfiles));
    QVERIFY(!SoapRequest::isOfMedia(SoapRequest::Operation::GetServices));
}

QTEST_GUILESS_MAIN(DeviceAnswersTest)
#include "tst_deviceanswers.moc"
