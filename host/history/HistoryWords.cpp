#include "history/HistoryWords.h"

#include "devices/KnownDevice.h"
#include "devices/NodeFacts.h"
#include "drivers/NodeTypes.h"
#include "ko/PropertyKeys.h"
#include "model/HistoryLimit.h"
#include "secrets/Secrets.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <iterator>

namespace ko {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(HistoryWords)
};

const char own[] = "HistoryWords";

/// A text as a page has it, in the context of the page, which translates it; the others are our own.
struct Title
{
    QLatin1String key;
    const char* context;
    const char* text;
};

const Title titles[] = {
    {PropertyKeys::Name, "GeneralPage", "Name:"},
    {PropertyKeys::Address, "UserDataWidget", "Address:"},
    {PropertyKeys::Port, "UserDataWidget", "Port:"},
    {PropertyKeys::UseSSL, "UserDataWidget", "Secure connection (SSL)"},
    {PropertyKeys::User, "UserDataWidget", "User name:"},
    {PropertyKeys::Password, "UserDataWidget", "Password:"},
    {PropertyKeys::Channel, "UserDataWidget", "Channel:"},
    {PropertyKeys::CredentialsEntered, own, QT_TRANSLATE_NOOP("HistoryWords", "User and password entered")},
    {PropertyKeys::Model, "InfoWidget", "Model:"},
    {PropertyKeys::Version, "InfoWidget", "Software version:"},
    {PropertyKeys::MacAddress, "InfoWidget", "MAC address:"},
    {PropertyKeys::FactoryIP, "InfoWidget", "Factory IP address:"},
    {PropertyKeys::IPAddresses, "InfoWidget", "Current IP addresses:"},
    {PropertyKeys::UrlPTZStream, "PTZUrlsWidget", "Live (M-JPEG):"},
    {PropertyKeys::IP, "RecordingTransponderCustomSettingsDialog", "IP address:"},
    {PropertyKeys::Bandwidth, "ControlDataWidget", "Bandwidth:"},
    {PropertyKeys::ControlMode, "ControlDataWidget", "Control Mode:"},
    {PropertyKeys::ProxyUse, "CustomNetworkProxyWidget", "Use custom proxy"},
    {PropertyKeys::ProxyAddress, own, QT_TRANSLATE_NOOP("HistoryWords", "Proxy address")},
    {PropertyKeys::ProxyPort, own, QT_TRANSLATE_NOOP("HistoryWords", "Proxy port")},
    {PropertyKeys::ProxyUser, own, QT_TRANSLATE_NOOP("HistoryWords", "Proxy user")},
    {PropertyKeys::ProxyPassword, own, QT_TRANSLATE_NOOP("HistoryWords", "Proxy password")},
    {PropertyKeys::ProxySavePassword, own, QT_TRANSLATE_NOOP("HistoryWords", "Save proxy password")},
    {PropertyKeys::InfoFile, "LayoutOptionsWidget", "Instruction file:"},
    {PropertyKeys::SmoothDisplay, "LayoutOptionsWidget", "Smooth display"},
    {PropertyKeys::PreferredLayout, "LayoutOptionsWidget", "Preferred/Alarm Layout:"},
    {PropertyKeys::AudioPathID, "LayoutOptionsWidget", "Audio path:"},
    {PropertyKeys::RotorControl, own, QT_TRANSLATE_NOOP("HistoryWords", "Pan/tilt head")},
    {PropertyKeys::RotorSensitivity, "PTZRotorControlWidget", "Sensitivity:"},
    {PropertyKeys::RotorFastMode, "PTZRotorControlWidget", "Fast Patch"},
    {PropertyKeys::PTZInvertX, "PTZRotorControlWidget", "Invert horizontal direction"},
    {PropertyKeys::PTZInvertY, "PTZRotorControlWidget", "Invert vertical direction"},
    {PropertyKeys::PTZRotorAddress, "PTZRotorControlWidget", "PTZ head address:"},
    {PropertyKeys::PTZRotorZoom, "PTZRotorControlWidget", "Mechanical zoom"},
    {PropertyKeys::UrlPTZStop, "PTZUrlsWidget", "Stop:"},
    {PropertyKeys::UrlPTZUp, "PTZUrlsWidget", "Up:"},
    {PropertyKeys::UrlPTZDown, "PTZUrlsWidget", "Down:"},
    {PropertyKeys::UrlPTZLeft, "PTZUrlsWidget", "Left:"},
    {PropertyKeys::UrlPTZRight, "PTZUrlsWidget", "Right:"},
    {PropertyKeys::UrlPTZZommIn, "PTZUrlsWidget", "Zoom in:"},
    {PropertyKeys::UrlPTZZoomOut, "PTZUrlsWidget", "Zoom out:"},
    {PropertyKeys::RecordingStorageUsage, "StorageLocationWidget", "Access recordings:"},
    {PropertyKeys::UseRecordingTransponder, own, QT_TRANSLATE_NOOP("HistoryWords", "Use remote preview")},
    {PropertyKeys::Nodes, "ViewPage", "Cameras:"},
    {PropertyKeys::Path, "PropertyFormPage", "Path:"},
    {PropertyKeys::UseGlobalPath, "PropertyFormPage", "Path is below the default file server path"},
    {PropertyKeys::CameraID, own, QT_TRANSLATE_NOOP("HistoryWords", "Camera")},
    {PropertyKeys::SavePassword, own, QT_TRANSLATE_NOOP("HistoryWords", "Save password")},
    {PropertyKeys::RecordingTransponderIP, "RecordingTransponderCustomSettingsDialog", "IP address:"},
    {PropertyKeys::RecordingTransponderPort, "RecordingTransponderCustomSettingsDialog", "Port:"},
    {PropertyKeys::RecordingTransponderSSL, "PropertyFormPage", "Secure connection (SSL)"},
    {PropertyKeys::RecordingTransponderUser, "RecordingTransponderCustomSettingsDialog", "User name:"},
    {PropertyKeys::RecordingTransponderPassword, "RecordingTransponderCustomSettingsDialog", "Password:"},
    {PropertyKeys::RecordingTransponderFramerate, "RecordingTransponderCustomSettingsDialog", "Frame rate"},
    {PropertyKeys::RecordingTransponderQuality, "RecordingTransponderCustomSettingsDialog", "JPEG quality"},
    {PropertyKeys::RecordingTransponderResolutionX, "RecordingTransponderCustomSettingsDialog", "Width:"},
    {PropertyKeys::RecordingTransponderResolutionY, "RecordingTransponderCustomSettingsDialog", "Height:"},
    {PropertyKeys::RecordingTransponderSound, own, QT_TRANSLATE_NOOP("HistoryWords", "Audio")},
    {PropertyKeys::RecordingTransponderPreviewMode, own, QT_TRANSLATE_NOOP("HistoryWords", "Preview mode")},
    {PropertyKeys::RecordingTransponderUseDefault, own,
     QT_TRANSLATE_NOOP("HistoryWords", "Default connection data")},
    {PropertyKeys::RecordingTransponderFramerateUseDefault, own,
     QT_TRANSLATE_NOOP("HistoryWords", "Default frame rate")},
    {PropertyKeys::RecordingTransponderQualityUseDefault, own,
     QT_TRANSLATE_NOOP("HistoryWords", "Default JPEG quality")},
    {PropertyKeys::RecordingTransponderResolutionUseDefault, own,
     QT_TRANSLATE_NOOP("HistoryWords", "Default resolution")},
    {PropertyKeys::RecordingTransponderSoundUseDefault, own,
     QT_TRANSLATE_NOOP("HistoryWords", "Default audio setting")},
    // Settings
    {QLatin1String("recording.globalFolderPath"), own,
     QT_TRANSLATE_NOOP("HistoryWords", "Default file server path")},
    {QLatin1String("recording.defaultTransponderAddress"), own,
     QT_TRANSLATE_NOOP("HistoryWords", "Default remote preview server")},
    {QLatin1String("bandwidth"), "ControlDataWidget", "Bandwidth:"},
    {QLatin1String("environment.active"), own, QT_TRANSLATE_NOOP("HistoryWords", "Active environment")},
    {QLatin1String(HistoryLimits::Days), own, QT_TRANSLATE_NOOP("HistoryWords", "Days of history")},
    {QLatin1String(HistoryLimits::Megabytes), own, QT_TRANSLATE_NOOP("HistoryWords", "Megabytes of history")},
    {QLatin1String("proxy.use"), own, QT_TRANSLATE_NOOP("HistoryWords", "Use proxy")},
    {QLatin1String("proxy.address"), own, QT_TRANSLATE_NOOP("HistoryWords", "Proxy address")},
    {QLatin1String("proxy.port"), own, QT_TRANSLATE_NOOP("HistoryWords", "Proxy port")},
    {QLatin1String("proxy.user"), own, QT_TRANSLATE_NOOP("HistoryWords", "Proxy user")},
    {QLatin1String("proxy.password"), own, QT_TRANSLATE_NOOP("HistoryWords", "Proxy password")},
    {QLatin1String("proxy.savePassword"), own, QT_TRANSLATE_NOOP("HistoryWords", "Save proxy password")},
    {QLatin1String("proxy.exceptions"), own, QT_TRANSLATE_NOOP("HistoryWords", "Proxy exceptions")},
};

/// What a number stands for.
const struct
{
    QLatin1String key;
    int value;
    const char* context;
    const char* text;
} choices[] = {
    {PropertyKeys::RecordingStorageUsage, ViaCamera, "RecordingFolderAssignmentDialog", "Via camera"},
    {PropertyKeys::RecordingStorageUsage, DefaultPath, own,
     QT_TRANSLATE_NOOP("HistoryWords", "Default file server path")},
    {PropertyKeys::RecordingStorageUsage, OwnFolder, "RecordingFolderAssignmentDialog",
     "Specific file server path"},
    {PropertyKeys::Bandwidth, SlowRemote, "ControlDataWidget", "Slow Remote (Modem, ISDN, GPRS/2G, EDGE)"},
    {PropertyKeys::Bandwidth, FastRemote, "ControlDataWidget", "Fast Remote (DSL, UMTS/3G)"},
    {PropertyKeys::Bandwidth, SlowLocal, "ControlDataWidget", "Slow Local (WLAN/WiFi, Ethernet)"},
    {PropertyKeys::Bandwidth, FastLocal, "ControlDataWidget", "Fast Local (Fast Ethernet, Gigabit Ethernet)"},
    {PropertyKeys::ControlMode, FullControl, "ControlDataWidget", "Full Control"},
    {PropertyKeys::ControlMode, ImageMode, "ControlDataWidget", "Image Mode"},
    {PropertyKeys::ControlMode, ViewerMode, "ControlDataWidget", "Viewer Mode"},
};

/// As in a heading: a caption without its colon.
QString caption(const char* context, const char* text)
{
    QString caption = QCoreApplication::translate(context, text).trimmed();
    if (caption.endsWith(QLatin1Char(':')))
        caption.chop(1);
    return caption.trimmed();
}

bool isSecret(const Alteration& of)
{
    return (of.kind == Alteration::Property && Secrets::isSecret(of.key)) ||
           (of.kind == Alteration::Setting && of.key == QLatin1String(Secrets::GlobalProxyPassword));
}

/// Whether the value tells what is meant by its identifier, or by several.
bool isIdentifier(const QString& key)
{
    return key == PropertyKeys::CameraID || key == PropertyKeys::AudioPathID || key == PropertyKeys::Nodes ||
           key == QLatin1String("environment.active");
}

/// The settings are texts; these mean a number, or a list.
QString settingText(const QString& key, const QString& text)
{
    if (key == QLatin1String("bandwidth")) {
        const auto found = std::find_if(std::begin(choices), std::end(choices), [&text](const auto& choice) {
            return choice.key == PropertyKeys::Bandwidth && text == QString::number(choice.value);
        });
        return found == std::end(choices) ? text : caption(found->context, found->text);
    }
    if (key == QLatin1String("proxy.use") || key == QLatin1String("proxy.savePassword"))
        return NodeFacts::text(text.toInt() != 0);
    if (key != QLatin1String("proxy.exceptions"))
        return text;
    QStringList list;
    const QJsonArray array = QJsonDocument::fromJson(text.toUtf8()).array();
    for (const QJsonValue& entry : array)
        list.append(entry.toString());
    return list.join(QLatin1String("; "));
}

QString propertyText(const QString& key, const QVariant& value)
{
    const auto found = std::find_if(std::begin(choices), std::end(choices), [&](const auto& choice) {
        return choice.key == key && value.userType() == QMetaType::Int && value.toInt() == choice.value;
    });
    return found == std::end(choices) ? NodeFacts::text(value) : caption(found->context, found->text);
}

} // namespace

HistoryWords::HistoryWords(NameOf nameOf)
    : m_nameOf(std::move(nameOf))
{
}

void HistoryWords::learn(const Alteration& alteration)
{
    if (!alteration.name.isEmpty())
        m_names.insert(alteration.node, alteration.name);
}

/// As it is called now, for that is how it is found.
QString HistoryWords::nameOf(const NodeID& id) const
{
    const QString name = m_nameOf(id);
    return name.isEmpty() ? m_names.value(id) : name;
}

/// Of those that have one.
QString HistoryWords::namesOf(const QString& ids) const
{
    QStringList names;
    const QStringList all = ids.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (const QString& id : all)
        names.append(nameOf(id));
    names.removeAll(QString());
    return names.join(QLatin1String(", "));
}

QString HistoryWords::owner(const Alteration& of) const
{
    if (of.kind == Alteration::EnvironmentList)
        return Texts::tr("Environments");
    if (of.kind == Alteration::Setting)
        return of.key.startsWith(QLatin1String("proxy.")) ? Texts::tr("Global proxy") : Texts::tr("Settings");
    return nameOf(of.node);
}

QString HistoryWords::what(const Alteration& of) const
{
    switch (of.kind) {
    case Alteration::Node:
        return of.type == AllNodeTypes ? Texts::tr("Node") : NodeTypes::readableName(of.type);
    case Alteration::Name:
        return title(PropertyKeys::Name);
    case Alteration::RelationTo:
        return of.relation.type == RecordingFolderRelation
                   ? NodeTypes::readableName(RecordingFolderType)
                   : NodeTypes::readableName(RecordingTransponderType);
    case Alteration::EnvironmentList:
        return Texts::tr("All");
    default:
        return title(of.key);
    }
}

QString HistoryWords::title(const QString& key)
{
    if (KnownDevice::keys().contains(key))
        return Texts::tr("Known device");
    const auto found = std::find_if(std::begin(titles), std::end(titles),
                                    [&key](const Title& entry) { return entry.key == key; });
    return found == std::end(titles) ? NodeFacts::title(key) : caption(found->context, found->text);
}

QVector<QStringList> HistoryWords::titledKeys()
{
    QStringList keys = KnownDevice::keys();
    for (const Title& entry : titles)
        keys.append(entry.key);
    QVector<QStringList> groups;
    QHash<QString, int> at; // of a title
    for (const QString& key : std::as_const(keys)) {
        const QString text = title(key);
        if (!at.contains(text)) {
            at.insert(text, int(groups.size()));
            groups.append(QStringList());
        }
        groups[at.value(text)].append(key);
    }
    return groups;
}

QString HistoryWords::text(const Alteration& of, const QVariant& value) const
{
    switch (of.kind) {
    case Alteration::Node:
        return value.isValid() ? of.name : Texts::tr("(not there)");
    case Alteration::RelationTo:
        return value.isValid() ? nameOf(of.relation.destination) : QString();
    case Alteration::EnvironmentList: {
        QStringList names;
        const Environments::List list = Alterations::environments(value);
        for (const auto& environment : list)
            names.append(environment.second);
        return names.join(QLatin1String(", "));
    }
    default: {
        QString names = isIdentifier(of.key) ? namesOf(value.toString()) : QString();
        if (!names.isEmpty())
            return names;
        return of.kind == Alteration::Setting ? settingText(of.key, value.toString())
                                              : propertyText(of.key, value);
    }
    }
}

QString HistoryWords::before(const Alteration& of, const QVariant& value) const
{
    if (isSecret(of))
        return value.toString().isEmpty() ? QString() : Texts::tr("(hidden)");
    return text(of, value);
}

QString HistoryWords::after(const Alteration& of, const QVariant& value) const
{
    if (isSecret(of))
        return value.toString().isEmpty() ? QString() : Texts::tr("changed");
    return text(of, value);
}

QString HistoryWords::reason(PutBackLine::State state)
{
    switch (state) {
    case PutBackLine::AsBefore:
        return Texts::tr("It is so already.");
    case PutBackLine::Changed:
        return Texts::tr("It was changed since.");
    case PutBackLine::Removed:
        return Texts::tr("The node was removed.");
    case PutBackLine::InUse:
        return Texts::tr("Others use it now.");
    default:
        return QString();
    }
}

} // namespace ko
