#ifndef KO_PROPERTYKEYS_H
#define KO_PROPERTYKEYS_H

#include <QString>

namespace ko {

/// The keys of all properties that the library reads or writes, and those under which a host keeps what nodes
/// offer through operations rather than by name. Each is named like its key.
namespace PropertyKeys {

inline const QLatin1String Name("Name");         ///< what Node::name() returns
inline const QLatin1String NodeType("NodeType"); ///< int: an ENodeType, never written

// Of devices
inline const QLatin1String Address("Address");
inline const QLatin1String Port("Port");     ///< int
inline const QLatin1String UseSSL("UseSSL"); ///< bool
inline const QLatin1String User("User");     ///< of recording folders too, as the next
inline const QLatin1String Password("Password");
inline const QLatin1String CredentialsEntered("CredentialsEntered"); ///< bool
inline const QLatin1String Channel("Channel");                       ///< int
inline const QLatin1String Model("Model");
inline const QLatin1String Version("Version");
inline const QLatin1String MacAddress("MACAddress");
inline const QLatin1String Bandwidth("Bandwidth");     ///< int: an ENodeBandwidth or -1
inline const QLatin1String ControlMode("ControlMode"); ///< int: an ENodeControl or -1
inline const QLatin1String ProxyUse("ProxyUse");       ///< bool
inline const QLatin1String ProxyAddress("ProxyAddress");
inline const QLatin1String ProxyPort("ProxyPort"); ///< int
inline const QLatin1String ProxyUser("ProxyUser");
inline const QLatin1String ProxyPassword("ProxyPassword");
inline const QLatin1String ProxySavePassword("ProxySavePassword"); ///< bool
inline const QLatin1String IP("IP");
inline const QLatin1String IPAddresses("IPAddresses"); ///< a set of strings
inline const QLatin1String FactoryIP("FactoryIP");     ///< its dots are underscores

// How the client presents a camera
inline const QLatin1String InfoFile("InfoFile");
inline const QLatin1String SmoothDisplay("SmoothDisplay");     ///< int: a Qt::CheckState
inline const QLatin1String PreferredLayout("PreferredLayout"); ///< a number as text
inline const QLatin1String AudioPathID("AudioPathID");

// The pan/tilt head of a camera
inline const QLatin1String RotorControl("RotorControl");         ///< int
inline const QLatin1String RotorSensitivity("RotorSensitivity"); ///< int
inline const QLatin1String RotorFastMode("RotorFastMode");       ///< bool
inline const QLatin1String PTZInvertX("PTZInvertX");             ///< bool
inline const QLatin1String PTZInvertY("PTZInvertY");             ///< bool
inline const QLatin1String PTZRotorAddress("PTZRotorAddress");   ///< int
inline const QLatin1String PTZRotorZoom("PTZRotorZoom");         ///< bool

// Of cameras that are driven by URLs. "ZommIn" is how databases spell it.
inline const QLatin1String UrlPTZStream("UrlPTZStream");
inline const QLatin1String UrlPTZStop("UrlPTZStop");
inline const QLatin1String UrlPTZUp("UrlPTZUp");
inline const QLatin1String UrlPTZDown("UrlPTZDown");
inline const QLatin1String UrlPTZLeft("UrlPTZLeft");
inline const QLatin1String UrlPTZRight("UrlPTZRight");
inline const QLatin1String UrlPTZZommIn("UrlPTZZommIn");
inline const QLatin1String UrlPTZZoomOut("UrlPTZZoomOut");

// Where a camera's recordings are played from
inline const QLatin1String RecordingStorageUsage("RecordingStorageUsage");     ///< int: an ERecordingUsage
inline const QLatin1String UseRecordingTransponder("UseRecordingTransponder"); ///< bool

// Of views
inline const QLatin1String Nodes("Nodes"); ///< identifiers in their order, separated by ";"

// Of recording folders
inline const QLatin1String Path("Path");
inline const QLatin1String UseGlobalPath("UseGlobalPath"); ///< bool
inline const QLatin1String CameraID("CameraID");
inline const QLatin1String SavePassword("SavePassword"); ///< bool
inline const QLatin1String KoFFS("KoFFS");               ///< bool

// Of the node with a camera's settings for the remote preview server
inline const QLatin1String RecordingTransponderUseDefault("RecordingTransponderUseDefault");   ///< bool
inline const QLatin1String RecordingTransponderPreviewMode("RecordingTransponderPreviewMode"); ///< int
inline const QLatin1String RecordingTransponderIP("RecordingTransponderIP");
inline const QLatin1String RecordingTransponderPort("RecordingTransponderPort"); ///< int
inline const QLatin1String RecordingTransponderSSL("RecordingTransponderSSL");   ///< bool
inline const QLatin1String RecordingTransponderUser("RecordingTransponderUser");
inline const QLatin1String RecordingTransponderPassword("RecordingTransponderPassword");
inline const QLatin1String RecordingTransponderFramerateUseDefault("RecordingTransponderFramerateUseDefault");
inline const QLatin1String RecordingTransponderFramerate("RecordingTransponderFramerate"); ///< float
inline const QLatin1String RecordingTransponderQualityUseDefault("RecordingTransponderQualityUseDefault");
inline const QLatin1String RecordingTransponderQuality("RecordingTransponderQuality"); ///< int: percent
inline const QLatin1String
    RecordingTransponderResolutionUseDefault("RecordingTransponderResolutionUseDefault");
inline const QLatin1String
    RecordingTransponderResolutionX("RecordingTransponderResolutionX"); ///< int: pixels
inline const QLatin1String
    RecordingTransponderResolutionY("RecordingTransponderResolutionY"); ///< int: pixels
inline const QLatin1String RecordingTransponderSoundUseDefault("RecordingTransponderSoundUseDefault");
inline const QLatin1String RecordingTransponderSound("RecordingTransponderSound"); ///< bool

} // namespace PropertyKeys

} // namespace ko

#endif
