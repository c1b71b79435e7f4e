#include "database/PurposeOf.h"

#include "drivers/NodeTypes.h"
#include "ko/PropertyKeys.h"

#include <algorithm>

namespace ko {

namespace PurposeOf {

namespace {

template <class List, class Predicate>
bool all(const List& list, const Predicate& predicate)
{
    return !list.isEmpty() && std::all_of(list.begin(), list.end(), predicate);
}

/// What a device gets by itself when it is written; see WrittenDevices.
bool isCompletion(const QString& key)
{
    return key == PropertyKeys::IP || key == PropertyKeys::IPAddresses || key == PropertyKeys::FactoryIP;
}

/// Whether \a change is an edit of these properties alone.
bool isEditOf(const NodeChange& change, std::initializer_list<QLatin1String> keys)
{
    if (!change.isUpdated() || change.before->name != change.after->name)
        return false;
    const auto isKnown = [&keys](const PropertyList::Entry& entry) {
        return isCompletion(entry.name) || std::find(keys.begin(), keys.end(), entry.name) != keys.end();
    };
    const PropertyList& before = change.before->properties;
    const PropertyList& after = change.after->properties;
    return std::all_of(before.begin(), before.end(), isKnown) &&
           std::all_of(after.begin(), after.end(), isKnown);
}

bool isEditOfCredentials(const NodeChange& change)
{
    return isEditOf(change, {PropertyKeys::User, PropertyKeys::Password, PropertyKeys::CredentialsEntered});
}

/// Of a camera, or of what it records to and is previewed by.
bool isOfRecording(const NodeChange& change)
{
    return change.type == RecordingFolderType || change.type == RecordingTransponderType ||
           isEditOf(change, {PropertyKeys::RecordingStorageUsage, PropertyKeys::UseRecordingTransponder});
}

/// Whether cameras are recorded elsewhere; what a single folder is, is a property of the folder.
bool isRecording(const ChangeSet& set)
{
    const auto isOfDevice = [](const NodeChange& change) { return NodeTypes::isDevice(change.type); };
    const bool isOfCameras = !set.relations.isEmpty() || set.nodes.size() > 1 ||
                             std::any_of(set.nodes.begin(), set.nodes.end(), isOfDevice);
    return isOfCameras && std::all_of(set.nodes.begin(), set.nodes.end(), isOfRecording);
}

} // namespace

Purpose changeSet(const ChangeSet& set)
{
    if (all(set.nodes, [](const NodeChange& change) { return change.isAdded(); }))
        return Purpose::Add;
    if (all(set.nodes, [](const NodeChange& change) { return change.isRemoved(); }))
        return Purpose::Remove;
    if (!set.nodes.isEmpty() || !set.relations.isEmpty()) {
        if (set.relations.isEmpty() && all(set.nodes, isEditOfCredentials))
            return Purpose::Credentials;
        return isRecording(set) ? Purpose::Recording : Purpose::Edit;
    }
    if (set.environments)
        return Purpose::Environments;
    const auto isOfProxy = [](const SettingChange& change) {
        return change.key.startsWith(QLatin1String("proxy."));
    };
    if (all(set.settings, isOfProxy))
        return Purpose::Proxy;
    return set.settings.isEmpty() ? Purpose::Edit : Purpose::Settings;
}

} // namespace PurposeOf

} // namespace ko
