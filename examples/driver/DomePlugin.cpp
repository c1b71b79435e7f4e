// The same node type for koclient, which is not built anew for it: a plugin in its folder of node types.
//   KONODEUI_NODE_TYPES=build/driver koclient      tries it before it is installed

#include "DomeDriver.h"
#include "drivers/NodeTypePlugin.h"
#include "ko/PropertyKeys.h"

#include <QCoreApplication>

namespace {

QString name()
{
    return QCoreApplication::translate("DomePlugin", "Dome Camera");
}

ko::InspectorWidget* createHintEditor(ko::NodeHint& hint, unsigned flags)
{
    return example::DomeDriver().createInspectorWidget(&hint, flags);
}

} // namespace

class DomePlugin : public QObject, public ko::NodeTypePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID KoNodeTypePlugin_iid)
    Q_INTERFACES(ko::NodeTypePlugin)

public:
    QVector<ko::OwnNodeType> nodeTypes() const override
    {
        ko::OwnNodeType dome;
        dome.type = example::DomeType;
        dome.name = name;
        dome.properties = {{ko::PropertyKeys::InfoFile, QString()}, {ko::PropertyKeys::RotorControl, 0}};
        dome.createEditor = example::createDomeInspector;
        dome.createHintEditor = createHintEditor;
        return {dome};
    }
};

#include "DomePlugin.moc"
