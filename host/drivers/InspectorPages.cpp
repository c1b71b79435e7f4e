#include "drivers/InspectorPages.h"

#include "drivers/CameraPages.h"
#include "drivers/GeneralPage.h"
#include "drivers/PropertyFormPage.h"
#include "drivers/ViewPage.h"
#include "ko/PropertyKeys.h"
#include "pages/ControlDataWidget.h"
#include "pages/CustomNetworkProxyWidget.h"
#include "pages/PTZRotorControlWidget.h"

#include <QCoreApplication>
#include <QHash>

namespace ko {

namespace {

template <class Widget>
std::unique_ptr<InspectorPage> create(QWidget* parent)
{
    return std::make_unique<PageOf<Widget>>(new Widget(parent));
}

template <class Page>
std::unique_ptr<InspectorPage> createPage(QWidget* parent)
{
    return std::make_unique<Page>(parent);
}

std::unique_ptr<InspectorPage> createLayoutOptions(QWidget* parent)
{
    LayoutOptionsWidget* page = new LayoutOptionsWidget(parent);
    page->setObjectName(QLatin1String(LayoutListPage::Name)); // the edit dialog looks for it
    return std::make_unique<PageOf<LayoutOptionsWidget>>(page);
}

typedef PropertyFormPage::Field Field;

const Field folderFields[] = {
    {PropertyKeys::Path, Field::Folder, QT_TRANSLATE_NOOP("PropertyFormPage", "Path:")},
    {PropertyKeys::UseGlobalPath, Field::Flag,
     QT_TRANSLATE_NOOP("PropertyFormPage", "Path is below the default file server path")},
    {PropertyKeys::User, Field::Text, QT_TRANSLATE_NOOP("PropertyFormPage", "User name:")},
    {PropertyKeys::Password, Field::Password, QT_TRANSLATE_NOOP("PropertyFormPage", "Password:")},
};

const Field remotePreviewFields[] = {
    {PropertyKeys::RecordingTransponderIP, Field::Text, QT_TRANSLATE_NOOP("PropertyFormPage", "Address:")},
    {PropertyKeys::RecordingTransponderPort, Field::Port, QT_TRANSLATE_NOOP("PropertyFormPage", "Port:")},
    {PropertyKeys::RecordingTransponderSSL, Field::Flag,
     QT_TRANSLATE_NOOP("PropertyFormPage", "Secure connection (SSL)")},
    {PropertyKeys::RecordingTransponderUser, Field::Text,
     QT_TRANSLATE_NOOP("PropertyFormPage", "User name:")},
    {PropertyKeys::RecordingTransponderPassword, Field::Password,
     QT_TRANSLATE_NOOP("PropertyFormPage", "Password:")},
};

template <const auto& fields>
std::unique_ptr<InspectorPage> createForm(QWidget* parent)
{
    QVector<Field> list;
    for (const Field& field : fields)
        list.append(field);
    return std::make_unique<PageOf<PropertyFormPage>>(new PropertyFormPage(list, parent));
}

const PageSpec general = {"general", QT_TRANSLATE_NOOP("NodeInspector", "General"), true,
                          create<GeneralPage>};
const PageSpec connection = {"general", QT_TRANSLATE_NOOP("NodeInspector", "General"), true,
                             create<UserDataWidget>};
const PageSpec folder = {"general", QT_TRANSLATE_NOOP("NodeInspector", "General"), true,
                         createForm<folderFields>};
const PageSpec viewNodes = {"nodes", QT_TRANSLATE_NOOP("NodeInspector", "Cameras"), true, create<ViewPage>};
const PageSpec remotePreview = {"general", QT_TRANSLATE_NOOP("NodeInspector", "General"), true,
                                createForm<remotePreviewFields>};
const PageSpec information = {"device", QT_TRANSLATE_NOOP("NodeInspector", "Device"), true,
                              createPage<DevicePage>};
const PageSpec control = {"device", QT_TRANSLATE_NOOP("NodeInspector", "Device"), false,
                          create<ControlDataWidget>};
const PageSpec layoutOptions = {LayoutListPage::TabName, QT_TRANSLATE_NOOP("NodeInspector", "Layout options"),
                                false, createLayoutOptions};
const PageSpec recordings = {"recordings", QT_TRANSLATE_NOOP("NodeInspector", "Recordings"), false,
                             createPage<RecordingsPage>};
const PageSpec rotor = {"ptz", QT_TRANSLATE_NOOP("NodeInspector", "PTZ"), false,
                        create<PTZRotorControlWidget>};
const PageSpec urls = {"ptz", QT_TRANSLATE_NOOP("NodeInspector", "URLs"), true, createPage<UrlsPage>};
const PageSpec proxy = {"proxy", QT_TRANSLATE_NOOP("NodeInspector", "Proxy"), true,
                        create<CustomNetworkProxyWidget>};

QVector<PageSpec> ownPagesOf(ENodeType type)
{
    switch (type) {
    case IPDeviceType:
    case ChannelDeviceType:
        return {general, connection, information, control, layoutOptions, recordings, rotor, proxy};
    case UrlCameraType:
        return {general, connection, urls, information, control, layoutOptions, recordings, proxy};
    case RecordingFolderType:
    case InternalRecorderType:
        return {general, folder};
    case RecordingTransponderType:
        return {general, remotePreview};
    case ViewType:
        return {general, viewNodes};
    default:
        return {general};
    }
}

QHash<int, QVector<PageSpec>>& addedPages()
{
    static QHash<int, QVector<PageSpec>> added; // by type
    return added;
}

} // namespace

QVector<PageSpec> pagesOf(ENodeType type)
{
    return ownPagesOf(type) + addedPages().value(type);
}

void addPage(ENodeType type, const PageSpec& page)
{
    addedPages()[type].append(page);
}

} // namespace ko
