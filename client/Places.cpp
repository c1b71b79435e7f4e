#include "Places.h"

#include "drivers/InspectorPages.h"
#include "drivers/NodeTypes.h"
#include "drivers/PropertyFormPage.h"

namespace ko {

namespace Places {

namespace {

typedef PropertyFormPage::Field Field;

std::unique_ptr<InspectorPage> createPage(QWidget* parent)
{
    const QVector<Field> fields = {
        {Location, Field::Text, QT_TRANSLATE_NOOP("PropertyFormPage", "Site/building/floor:")},
        {Tags, Field::Text, QT_TRANSLATE_NOOP("PropertyFormPage", "Tags, separated by commas:")},
    };
    return std::make_unique<PageOf<PropertyFormPage>>(new PropertyFormPage(fields, parent));
}

} // namespace

void declare()
{
    static bool isDone = false;
    if (isDone)
        return;
    isDone = true;
    NodeTypes::declareForDevices({Location, QString(), "location"});
    NodeTypes::declareForDevices({Tags, QString(), "tags"});
    for (const ENodeType type : {IPDeviceType, UrlCameraType, ChannelDeviceType})
        addPage(type, {"location", QT_TRANSLATE_NOOP("NodeInspector", "Location"), true, createPage});
}

QString normalized(const QString& path)
{
    QStringList parts = path.split(QLatin1Char('/'));
    for (QString& part : parts)
        part = part.simplified();
    parts.removeAll(QString());
    return parts.join(QLatin1Char('/'));
}

bool isWithin(const QString& place, const QString& outer)
{
    return place.startsWith(outer) &&
           (place.size() == outer.size() || place.at(outer.size()) == QLatin1Char('/'));
}

} // namespace Places

} // namespace ko
