#include "devices/DeviceAnswers.h"
#include "devices/PictureFetch.h"

#include <QTest>

using namespace ko;

namespace {

/// As a common toolkit for servers writes it: some forty prefixes of which five are used, and what a client
/// sent as its password in the header.
QByteArray generated(const QByteArray& body)
{
    QByteArray spaces = R"( xmlns:SOAP-ENV="http://www.w3.org/2003/05/soap-envelope")"
                        R"( xmlns:tt="http://www.onvif.org/ver10/schema")"
                        R"( xmlns:tds="http://www.onvif.org/ver10/device/wsdl")"
                        R"( xmlns:trt="http://www.onvif.org/ver10/media/wsdl")"
                        R"( xmlns:ter="http://www.onvif.org/ver10/error")"
                        R"( xmlns:wsse="http://docs.oasis-open.org/wss/2004/01/secext-1.0.xsd")";
    for (int i = 1; i < 40; ++i)
        spaces += " xmlns:ns" + QByteArray::number(i) + "=\"http://www.onvif.org/ver10/service" +
                  QByteArray::number(i) + "/wsdl/NotificationConsumerBinding\"";
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<SOAP-ENV:Envelope" + spaces +
           "><SOAP-ENV:Header><wsse:Security><wsse:UsernameToken><wsse:Username>admin</wsse:Username>"
           "<wsse:Nonce>bm9uY2U=</wsse:Nonce></wsse:UsernameToken></wsse:Security></SOAP-ENV:Header>"
           "<SOAP-ENV:Body>" +
           body + "</SOAP-ENV:Body></SOAP-ENV:Envelope>\r\n";
}

} // namespace

/// Answers in the shape in which devices of several makers were seen to give them.
class tst_OddAnswers : public QObject
{
    Q_OBJECT

private slots:
    void addressTwice();
    void mediaServiceSomewhereElse();
    void namespacesOnEachElement();
    void encoderOfWhichNothingIsTold();
    void pictureWithQuestion();
    void faultWithinTheFault();
};

/// The one from DHCP is told as link-local as well.
void tst_OddAnswers::addressTwice()
{
    DeviceFacts facts;
    QVERIFY(DeviceAnswers::readNetworkInterfaces(
        generated(
            "<tds:GetNetworkInterfacesResponse><tds:NetworkInterfaces token=\"eth0\"><tt:Enabled>true"
            "</tt:Enabled><tt:Info><tt:Name>eth0</tt:Name><tt:HwAddress>02:FC:DA:B1:69:0A</tt:HwAddress>"
            "<tt:MTU>1500</tt:MTU></tt:Info><tt:IPv4><tt:Enabled>true</tt:Enabled><tt:Config><tt:LinkLocal>"
            "<tt:Address>10.1.2.8</tt:Address><tt:PrefixLength>0</tt:PrefixLength></tt:LinkLocal>"
            "<tt:FromDHCP><tt:Address>10.1.2.8</tt:Address><tt:PrefixLength>23</tt:PrefixLength>"
            "</tt:FromDHCP><tt:DHCP>true</tt:DHCP></tt:Config></tt:IPv4></tds:NetworkInterfaces>"
            "</tds:GetNetworkInterfacesResponse>"),
        facts));
    QCOMPARE(facts.macAddresses, QStringList("02:FC:DA:B1:69:0A"));
    QCOMPARE(facts.addresses, QStringList("10.1.2.8"));
}

void tst_OddAnswers::mediaServiceSomewhereElse()
{
    QByteArray services;
    for (const char* name : {"ver10/device", "ver10/media", "ver10/events", "ver20/imaging", "ver20/ptz"})
        services += QByteArray("<tds:Service><tds:Namespace>http://www.onvif.org/") + name +
                    "/wsdl</tds:Namespace><tds:XAddr>http://10.1.2.8:8899/onvif/" +
                    QByteArray(name).mid(6).replace("media", "Media") +
                    "</tds:XAddr><tds:Version><tt:Major>2</tt:Major><tt:Minor>41</tt:Minor></tds:Version>"
                    "</tds:Service>";
    DeviceFacts facts;
    QVERIFY(DeviceAnswers::readServices(
        generated("<tds:GetServicesResponse>" + services + "</tds:GetServicesResponse>"), facts));
    QCOMPARE(facts.mediaPath, QString("/onvif/Media"));
    QCOMPARE(int(facts.services.size()), 5);
    QVERIFY(facts.hasPtz);
}

/// No prefixes: each element says to which namespace it belongs.
void tst_OddAnswers::namespacesOnEachElement()
{
    const QByteArray schema = " xmlns=\"http://www.onvif.org/ver10/schema\"";
    DeviceFacts facts;
    QVERIFY(DeviceAnswers::readProfiles(
        "<env:Envelope xmlns:env=\"http://www.w3.org/2003/05/soap-envelope\"><env:Body><GetProfilesResponse "
        "xmlns=\"http://www.onvif.org/ver10/media/wsdl\"><Profiles token=\"Profile_1\" fixed=\"true\">"
        "<Name" +
            schema + ">mainStream</Name><VideoSourceConfiguration" + schema +
            "><Name>VideoSourceConfig</Name><UseCount>2</UseCount><SourceToken>VideoSource_1</SourceToken>"
            "<Bounds x=\"0\" y=\"0\" width=\"640\" height=\"480\"></Bounds></VideoSourceConfiguration>"
            "<VideoEncoderConfiguration" +
            schema +
            "><Name>VideoEncoder_1</Name><UseCount>1</UseCount><Encoding>H264</Encoding><Resolution>"
            "<Width>640</Width><Height>480</Height></Resolution><Quality>3.000000</Quality><RateControl>"
            "<FrameRateLimit>2</FrameRateLimit><EncodingInterval>1</EncodingInterval><BitrateLimit>2147483647"
            "</BitrateLimit></RateControl><Multicast><Address><Type>IPv4</Type></Address></Multicast>"
            "</VideoEncoderConfiguration></Profiles></GetProfilesResponse></env:Body></env:Envelope>",
        facts));
    QCOMPARE(int(facts.profiles.size()), 1);
    const DeviceProfile& profile = facts.profiles.constFirst();
    QCOMPARE(profile.token, QString("Profile_1"));
    QCOMPARE(profile.name, QString("mainStream"));
    QCOMPARE(profile.source, QString("VideoSource_1"));
    QCOMPARE(profile.resolution, QSize(640, 480));
    QCOMPARE(profile.rate, 2.0);
    QCOMPARE(profile.bitrate, 0); // that many are as good as not told
}

void tst_OddAnswers::encoderOfWhichNothingIsTold()
{
    DeviceFacts facts;
    QVERIFY(DeviceAnswers::readProfiles(
        "<?xml version=\"1.0\" encoding=\"utf-8\" standalone=\"yes\" ?><s:Envelope "
        "xmlns:s=\"http://www.w3.org/2003/05/soap-envelope\" xmlns:tt=\"http://www.onvif.org/ver10/schema\" "
        "xmlns:trt=\"http://www.onvif.org/ver10/media/wsdl\"><s:Header/><s:Body><trt:GetProfilesResponse>"
        "<trt:Profiles token=\"MediaProfile00000\" fixed=\"true\"><tt:Name>MediaProfile_Channel1_MainStream"
        "</tt:Name><tt:VideoSourceConfiguration token=\"00000\"><tt:SourceToken>00000</tt:SourceToken>"
        "<tt:Extension><tt:Rotate><tt:Mode>OFF</tt:Mode></tt:Rotate></tt:Extension>"
        "</tt:VideoSourceConfiguration><tt:AudioSourceConfiguration token=\"00000\"><tt:SourceToken>00009"
        "</tt:SourceToken></tt:AudioSourceConfiguration><tt:VideoEncoderConfiguration token=\"00000\">"
        "<tt:Name>VideoEncoderConfig</tt:Name><tt:UseCount>1</tt:UseCount></tt:VideoEncoderConfiguration>"
        "<tt:AudioEncoderConfiguration token=\"00000\"><tt:Encoding>AAC</tt:Encoding><tt:Bitrate>64"
        "</tt:Bitrate></tt:AudioEncoderConfiguration></trt:Profiles></trt:GetProfilesResponse></s:Body>"
        "</s:Envelope>",
        facts));
    QCOMPARE(int(facts.profiles.size()), 1);
    QCOMPARE(facts.profiles.constFirst().source, QString("00000")); // not that of the sound
    QCOMPARE(facts.profiles.constFirst().encoding, QString());
    QVERIFY(!facts.profiles.constFirst().resolution.isValid());
    QCOMPARE(PictureFetch::profileOf(facts, 1), 0); // there may be a picture all the same
}

void tst_OddAnswers::pictureWithQuestion()
{
    QString uri;
    QVERIFY(DeviceAnswers::readUri(
        generated("\n    <trt:GetSnapshotUriResponse>\n      <trt:MediaUri>\n        <tt:Uri>"
                  "http://10.1.2.8/onvif-cgi/jpg/image.cgi?resolution=800x600&amp;compression=20&amp;camera=1"
                  "</tt:Uri>\n        <tt:InvalidAfterConnect>false</tt:InvalidAfterConnect>\n"
                  "        <tt:Timeout>PT0S</tt:Timeout>\n      </trt:MediaUri>\n"
                  "    </trt:GetSnapshotUriResponse>\n  "),
        uri));
    QCOMPARE(uri,
             QString("http://10.1.2.8/onvif-cgi/jpg/image.cgi?resolution=800x600&compression=20&camera=1"));
}

/// Its details hold one more, with a code of their own, and a reason.
void tst_OddAnswers::faultWithinTheFault()
{
    const DeviceFault fault = DeviceAnswers::readFault(generated(
        "<SOAP-ENV:Fault><SOAP-ENV:Code><SOAP-ENV:Value>\n env:Sender \n</SOAP-ENV:Value><SOAP-ENV:Subcode>"
        "<SOAP-ENV:Value>\n ter:InvalidArgVal \n</SOAP-ENV:Value><SOAP-ENV:Subcode><SOAP-ENV:Value>"
        "ter:NoProfile</SOAP-ENV:Value></SOAP-ENV:Subcode></SOAP-ENV:Subcode></SOAP-ENV:Code>"
        "<SOAP-ENV:Reason><SOAP-ENV:Text xml:lang=\"en\">Argument Value Invalid</SOAP-ENV:Text>"
        "</SOAP-ENV:Reason><SOAP-ENV:Detail><ter:Fault><ter:Code>NotAuthorized</ter:Code><ter:Reason>"
        "the account is locked</ter:Reason></ter:Fault></SOAP-ENV:Detail></SOAP-ENV:Fault>"));
    QCOMPARE(fault.kind, DeviceFault::Other);
    QCOMPARE(fault.text, QString("Argument Value Invalid"));
}

QTEST_GUILESS_MAIN(tst_OddAnswers)
#include "tst_oddanswers.moc"
