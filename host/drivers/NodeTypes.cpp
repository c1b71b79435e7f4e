#include "drivers/NodeTypes.h"

#include "drivers/DeviceNode.h"
#include "drivers/NodeDriver.h"
#include "drivers/ProxyProperties.h"
#include "ko/NodeHintIPDevice.h"
#include "kogen/Property.h"

#include <QGuiApplication>
#include <QHash>
#include <QImage>
#include <QPalette>
#include <QPixmap>

#include <algorithm>

namespace ko {

namespace NodeTypes {

namespace {

/// A property that every new node of a type carries: pages offer only what a node carries.
struct Default
{
    const char* key;
    QVariant value;
};

const QVector<Default>& noDefaults()
{
    static const QVector<Default> none;
    return none;
}

const QVector<Default>& folderDefaults()
{
    static const QVector<Default> defaults = {
        {PropertyKeys::Path, QString()},
        {PropertyKeys::UseGlobalPath, false},
        {PropertyKeys::User, QString()},
        {PropertyKeys::Password, QString()},
    };
    return defaults;
}

const QVector<Default>& cameraDefaults()
{
    static const QVector<Default> defaults = {
        {"InfoFile", QString()},
        {"SmoothDisplay", 0},
        {"PreferredLayout", QString()},
        {"AudioPathID", QString()},
        {PropertyKeys::RecordingStorageUsage, 0},
        {"UseRecordingTransponder", false},
        {"RotorControl", 0},
        {"RotorSensitivity", 0},
        {"RotorFastMode", false},
        {"PTZInvertX", false},
        {"PTZInvertY", false},
        {"PTZRotorAddress", 1},
        {"PTZRotorZoom", false},
    };
    return defaults;
}

const QVector<Default>& urlCameraDefaults()
{
    static const QVector<Default> defaults = [] {
        QVector<Default> all = cameraDefaults();
        static const char* const urls[] = {"UrlPTZStream", "UrlPTZStop",  "UrlPTZUp",     "UrlPTZDown",
                                           "UrlPTZLeft",   "UrlPTZRight", "UrlPTZZommIn", "UrlPTZZoomOut"};
        for (const char* url : urls)
            all.append({url, QString()});
        return all;
    }();
    return defaults;
}

struct TypeInfo
{
    ENodeType type;
    const char* name; ///< in the translation context "NodeTypes"
    const char* icon;
    bool canBeAdded;
    bool isDevice;
    const QVector<Default>& (*defaults)();
};

const TypeInfo types[] = {
    {RecordingFolderType, QT_TRANSLATE_NOOP("NodeTypes", "Recording Folder"), "folder", true, false,
     folderDefaults},
    {ViewType, QT_TRANSLATE_NOOP("NodeTypes", "View"), "view", true, false, noDefaults},
    {IPDeviceType, QT_TRANSLATE_NOOP("NodeTypes", "IP Camera"), "camera", true, true, cameraDefaults},
    {UrlCameraType, QT_TRANSLATE_NOOP("NodeTypes", "URL Camera"), "urlCamera", true, true, urlCameraDefaults},
    {ChannelDeviceType, QT_TRANSLATE_NOOP("NodeTypes", "Multi-Channel Device"), "channelDevice", true, true,
     cameraDefaults},
    {InternalRecorderType, QT_TRANSLATE_NOOP("NodeTypes", "Internal Recorder"), "recorder", false, false,
     folderDefaults},
    {RecordingTransponderType, QT_TRANSLATE_NOOP("NodeTypes", "Remote Preview Server"), "transponder", false,
     false, noDefaults},
};

const TypeInfo* find(ENodeType type)
{
    for (const TypeInfo& info : types) {
        if (info.type == type)
            return &info;
    }
    return nullptr;
}

QVariant property(const NodeData& data, const char* key)
{
    return data.properties.value(QLatin1String(key));
}

/// Where a node of the type is found.
const char* locationKey(ENodeType type)
{
    if (type == RecordingTransponderType)
        return PropertyKeys::RemotePreviewAddress;
    const TypeInfo* info = find(type);
    return info && info->isDevice ? PropertyKeys::Address : PropertyKeys::Path;
}

void describeDevice(NodeData& data, const NodeHintIPDevice& hint)
{
    const auto set = [&data](const char* key, const QVariant& value) {
        data.properties.set(QLatin1String(key), value);
    };
    set(PropertyKeys::Address, hint.address);
    set(PropertyKeys::Port, hint.port);
    set(PropertyKeys::UseSSL, hint.useSSL);
    set(PropertyKeys::User, hint.user);
    set(PropertyKeys::Password, hint.password);
    set(PropertyKeys::CredentialsEntered, hint.credentialsEntered);
    set(PropertyKeys::Model, hint.model);
    set(PropertyKeys::Version, hint.version);
    if (!hint.macAddress.isNull())
        set(PropertyKeys::MacAddress, hint.macAddress.toString(true));
    if (hint.type == ChannelDeviceType)
        set(PropertyKeys::Channel, hint.channel);
    ProxyProperties::write(data, hint.proxy);
}

constexpr int White = 245;
constexpr int Edge = 55; // steps of gray below white that edges are smoothed over

/// What stands for \a picture on a selection: its shape in the color of the text there, open where it is
/// white. The toolkit's tint would leave a blue camera on a blue ground.
QPixmap onSelection(const QImage& picture)
{
    const QRgb ink = QGuiApplication::palette().color(QPalette::HighlightedText).rgb();
    QImage shape = picture.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < shape.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(shape.scanLine(y));
        std::transform(line, line + shape.width(), line, [ink](QRgb pixel) {
            const int cover = qBound(0, White - qGray(pixel), Edge) * qAlpha(pixel) / Edge;
            return qRgba(qRed(ink), qGreen(ink), qBlue(ink), cover);
        });
    }
    return QPixmap::fromImage(shape);
}

} // namespace

QList<ENodeType> all()
{
    QList<ENodeType> all;
    for (const TypeInfo& info : types)
        all.append(info.type);
    return all;
}

QString readableName(ENodeType type)
{
    const TypeInfo* info = find(type);
    return info ? QCoreApplication::translate("NodeTypes", info->name)
                : QCoreApplication::translate("NodeTypes", "Node of type %1").arg(int(type));
}

QIcon icon(ENodeType type)
{
    // Shared by all nodes: an icon keeps the pixmaps that it has rendered.
    static QHash<int, QIcon> icons;
    QIcon& icon = icons[type];
    if (icon.isNull()) {
        const TypeInfo* info = find(type);
        const QString name = QLatin1String(":/host/") + QLatin1String(info ? info->icon : "node");
        icon = QIcon(name + QLatin1String(".png"));
        for (const char* end : {".png", "@2x.png"})
            icon.addPixmap(onSelection(QImage(name + QLatin1String(end))), QIcon::Selected);
    }
    return icon;
}

bool canBeAdded(ENodeType type)
{
    const TypeInfo* info = find(type);
    return info && info->canBeAdded;
}

bool isDevice(ENodeType type)
{
    const TypeInfo* info = find(type);
    return info && info->isDevice;
}

kom::smart<INodeDriverComponent> driver(ENodeType type)
{
    static const kom::smart<INodeDriverComponent> driver = kom::makeSmart<NodeDriver>();
    return find(type) ? driver : kom::smart<INodeDriverComponent>();
}

std::unique_ptr<Node> createNode(const NodeData& data)
{
    if (data.type == ChannelDeviceType)
        return std::make_unique<ChannelDeviceNode>(data);
    if (isDevice(data.type))
        return std::make_unique<DeviceNode>(data);
    return std::make_unique<PlainNode>(data);
}

NodeData described(const NodeHint& hint)
{
    NodeData data;
    data.type = hint.type;
    data.name = hint.name();
    data.context = hint.context;
    data.hasContext = hint.context != nullptr;
    for (const auto& entry : hint.properties())
        data.properties.set(entry.first, entry.second->value());
    if (const auto* device = dynamic_cast<const NodeHintIPDevice*>(&hint))
        describeDevice(data, *device);
    return data;
}

NodeData dataOf(const NodeHint& hint)
{
    NodeData data = described(hint);
    if (const TypeInfo* info = find(hint.type)) {
        for (const Default& property : info->defaults()) {
            const QString key = QLatin1String(property.key);
            if (!data.properties.contains(key))
                data.properties.set(key, property.value);
        }
    }
    return data;
}

NodeData remotePreviewOf(const NodeData& camera, const QString& address)
{
    NodeData data;
    data.type = RecordingTransponderType;
    data.name = QCoreApplication::translate("NodeTypes", "Remote preview of %1").arg(camera.name);
    for (const char* key :
         {"RecordingTransponderUseDefault", "RecordingTransponderFramerateUseDefault",
          "RecordingTransponderQualityUseDefault", "RecordingTransponderResolutionUseDefault",
          "RecordingTransponderSoundUseDefault"})
        data.properties.set(QLatin1String(key), true);
    data.properties.set(QLatin1String(PropertyKeys::RemotePreviewAddress), address);
    return data;
}

NodeSummary summaryOf(const NodeData& data)
{
    NodeSummary summary;
    summary.id = data.id;
    summary.type = data.type;
    summary.name = data.name;
    summary.location = property(data, locationKey(data.type)).toString();
    const QVariant usage = property(data, PropertyKeys::RecordingStorageUsage);
    summary.recordingUsage = usage.isValid() ? usage.toInt() : -1;
    return summary;
}

QString lookupKey(const NodeData& data)
{
    // Parts are joined by a character that occurs in none of them.
    const QChar separator(0x1f);
    if (isDevice(data.type)) {
        const QString address = property(data, PropertyKeys::Address).toString().trimmed().toLower();
        if (address.isEmpty())
            return QString();
        const QString port = QString::number(property(data, PropertyKeys::Port).toInt());
        const QString channel = property(data, PropertyKeys::Channel).toString();
        return QStringList{QLatin1String("device"), address, port, channel}.join(separator);
    }
    if (data.type == RecordingFolderType) {
        const QString camera = property(data, PropertyKeys::CameraID).toString();
        const QString path = property(data, PropertyKeys::Path).toString();
        if (camera.isEmpty() && path.isEmpty())
            return QString();
        return QStringList{QLatin1String("folder"), camera, path}.join(separator);
    }
    return QString();
}

} // namespace NodeTypes

} // namespace ko
