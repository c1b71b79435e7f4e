#ifndef KO_PROPERTYKEYS_H
#define KO_PROPERTYKEYS_H

namespace ko {

/// Keys under which this host keeps what nodes offer through operations rather than by name.
namespace PropertyKeys {

inline constexpr char Name[] = "Name";         ///< the node's name, kept apart from the properties
inline constexpr char NodeType[] = "NodeType"; ///< the node's type, never written

inline constexpr char Address[] = "Address";
inline constexpr char Port[] = "Port";
inline constexpr char UseSSL[] = "UseSSL";
inline constexpr char User[] = "User";
inline constexpr char Password[] = "Password";
inline constexpr char CredentialsEntered[] = "CredentialsEntered";
inline constexpr char Channel[] = "Channel";
inline constexpr char Model[] = "Model";
inline constexpr char Version[] = "Version";
inline constexpr char MacAddress[] = "MACAddress";
inline constexpr char Bandwidth[] = "Bandwidth";
inline constexpr char ControlMode[] = "ControlMode";
inline constexpr char ProxyUse[] = "ProxyUse";
inline constexpr char ProxyAddress[] = "ProxyAddress";
inline constexpr char ProxyPort[] = "ProxyPort";
inline constexpr char ProxyUser[] = "ProxyUser";
inline constexpr char ProxyPassword[] = "ProxyPassword";
inline constexpr char ProxySavePassword[] = "ProxySavePassword";

inline constexpr char Path[] = "Path";
inline constexpr char UseGlobalPath[] = "UseGlobalPath";
inline constexpr char CameraID[] = "CameraID";
inline constexpr char RecordingStorageUsage[] = "RecordingStorageUsage";
inline constexpr char RemotePreviewPassword[] = "RecordingTransponderPassword";
inline constexpr char RemotePreviewAddress[] = "RecordingTransponderIP";

} // namespace PropertyKeys

} // namespace ko

#endif
