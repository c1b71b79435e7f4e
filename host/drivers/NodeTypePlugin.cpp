#include "drivers/NodeTypePlugin.h"

#include <QDir>
#include <QJsonObject>
#include <QLibrary>
#include <QPluginLoader>

namespace ko {

namespace NodeTypePlugins {

namespace {

/// Empty if all of it is known now.
QString loadOne(const QString& file)
{
    QPluginLoader loader(file);
    const QString name = loader.metaData().value(QLatin1String("IID")).toString();
    if (name.isEmpty())
        return QStringLiteral("it is no plugin that this program can read");
    if (name != QLatin1String(KoNodeTypePlugin_iid))
        return QStringLiteral("it is made for %1, not for %2").arg(name, QLatin1String(KoNodeTypePlugin_iid));
    auto* plugin = qobject_cast<NodeTypePlugin*>(loader.instance());
    if (!plugin)
        return loader.errorString();
    const QVector<OwnNodeType> types = plugin->nodeTypes();
    QStringList refused;
    for (const OwnNodeType& type : types)
        refused.append(NodeTypes::declareType(type));
    refused.removeAll(QString());
    return refused.join(QLatin1String("; "));
}

} // namespace

QStringList load(const QString& folder)
{
    QStringList problems;
    const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo& file : files) {
        if (!QLibrary::isLibrary(file.fileName()))
            continue;
        const QString problem = loadOne(file.absoluteFilePath());
        if (!problem.isEmpty())
            problems.append(QStringLiteral("%1 brings not all of its node types: %2")
                                .arg(QDir::toNativeSeparators(file.absoluteFilePath()), problem));
    }
    return problems;
}

} // namespace NodeTypePlugins

} // namespace ko
