#ifndef KO_NODETYPEPLUGIN_H
#define KO_NODETYPEPLUGIN_H

#include "drivers/OwnNodeType.h"

#include <QStringList>
#include <QtPlugin>

namespace ko {

/// What a shared library offers that brings node types into a program with this host.
///
/// The library is built against this one and the same major version of the toolkit. The name of the interface
/// changes when what is declared here or in OwnNodeType does; what has another name is not loaded.
class NodeTypePlugin
{
public:
    virtual ~NodeTypePlugin() = default;

    /// Asked once, before a database is opened. There may be no window then, and never one.
    virtual QVector<OwnNodeType> nodeTypes() const = 0;
};

namespace NodeTypePlugins {

/// Loads all plugins in a folder, in the order of their names, for as long as the program runs, and declares
/// their types. Nothing of a library is run that has another interface. Returns what was not loaded or not
/// declared, and why, a line each; a folder that is not there has no plugins.
KO_HOST_EXPORT QStringList load(const QString& folder);

} // namespace NodeTypePlugins

} // namespace ko

#define KoNodeTypePlugin_iid "org.konodeui.NodeTypePlugin/1"
Q_DECLARE_INTERFACE(ko::NodeTypePlugin, KoNodeTypePlugin_iid)

#endif
