#include "MessageHints.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMessageBox>

#include <algorithm>
#include <iterator>

namespace ko {

namespace {

/// Messages are known by their titles.
const struct
{
    const char* context;
    const char* title;
    const char* hint;
} hints[] = {
    {"RecordingFolderAssignmentDialog", "Default file server path not set",
     QT_TRANSLATE_NOOP("MessageHints", "It is set in \"File > Preferences\" of the main window.")},
    {"RecordingFolderMassAssignmentDialog", "Default file server path not set",
     QT_TRANSLATE_NOOP("MessageHints", "It is set in \"File > Preferences\" of the main window.")},
    {"RecordingFolderAssignmentDialog", "No recording folder assigned",
     QT_TRANSLATE_NOOP("MessageHints", "Type a path, or press \"More...\" and choose one of the folders.")},
    {"RecordingFolderAssignmentDialog", "Factory extension unknown",
     QT_TRANSLATE_NOOP("MessageHints", "It is what \"Properties\" shows as the factory IP address of the "
                                       "camera. \"Node > Fill In\" of the main window asks the camera for "
                                       "it.")},
};

} // namespace

MessageHints::MessageHints(QObject* parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool MessageHints::eventFilter(QObject* watched, QEvent* event)
{
    auto* box = event->type() == QEvent::Show ? qobject_cast<QMessageBox*>(watched) : nullptr;
    if (box && box->informativeText().isEmpty()) {
        const auto* hint = std::find_if(std::begin(hints), std::end(hints), [box](const auto& each) {
            return QCoreApplication::translate(each.context, each.title) == box->windowTitle();
        });
        if (hint != std::end(hints))
            box->setInformativeText(QCoreApplication::translate("MessageHints", hint->hint));
    }
    return QObject::eventFilter(watched, event);
}

} // namespace ko
