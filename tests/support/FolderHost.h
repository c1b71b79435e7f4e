#ifndef TESTS_SUPPORT_FOLDERHOST_H
#define TESTS_SUPPORT_FOLDERHOST_H

#include "support/SmallHost.h"

#include "ko/NodeHint.h"

namespace testsupport {

/// A small host with recording folders, where camera and path decide which folder a hint describes.
class FolderHost : public SmallNodeDB
{
public:
    FolderHost() { defineType(ko::RecordingFolderType, QLatin1String("Recording folder")); }

    QString lookupHint(const ko::NodeHint& hint) const override
    {
        if (hint.type != ko::RecordingFolderType)
            return SmallNodeDB::lookupHint(hint);
        lookups.append(text(hint, "Path"));
        const QStringList ids = nodeIdList(ko::RecordingFolderType);
        for (const QString& id : ids) {
            if (text(*node(id), "Path") == text(hint, "Path") &&
                text(*node(id), "CameraID") == text(hint, "CameraID"))
                return id;
        }
        return QString();
    }

    static QString text(const ko::PropertyAccess& object, const char* key)
    {
        return object.stringProperty(QLatin1String(key), QString());
    }

    /// The calls; when a hint is given back is nobody's business here.
    QStringList madeCalls() const
    {
        QStringList made = calls;
        made.removeAll(QLatin1String("~hint()"));
        return made;
    }

    mutable QStringList lookups; ///< paths that were asked for
};

} // namespace testsupport

#endif
