#include "model/LogFinding.h"

namespace ko {

namespace {

/// For change sets, their lines and the audit log.
const char* const texts[][3] = {
    {QT_TRANSLATE_NOOP("LogFinding", "Change set %1 was altered."),
     QT_TRANSLATE_NOOP("LogFinding", "Line %1 of the change sets was altered."),
     QT_TRANSLATE_NOOP("LogFinding", "Entry %1 of the audit log was altered.")},
    {QT_TRANSLATE_NOOP("LogFinding", "Change set %1 is missing."),
     QT_TRANSLATE_NOOP("LogFinding", "Line %1 of the change sets is missing."),
     QT_TRANSLATE_NOOP("LogFinding", "Entry %1 of the audit log is missing.")},
    {QT_TRANSLATE_NOOP("LogFinding", "Change set %1 was put in by another program."),
     QT_TRANSLATE_NOOP("LogFinding", "Line %1 of the change sets was put in by another program."),
     QT_TRANSLATE_NOOP("LogFinding", "Entry %1 of the audit log was put in by another program.")},
    {QT_TRANSLATE_NOOP("LogFinding", "From change set %1 on the log was rewritten."),
     QT_TRANSLATE_NOOP("LogFinding", "From line %1 of the change sets on the log was rewritten."),
     QT_TRANSLATE_NOOP("LogFinding", "From entry %1 of the audit log on the log was rewritten.")},
    {QT_TRANSLATE_NOOP("LogFinding", "From change set %1 on the log is sealed with another key."),
     QT_TRANSLATE_NOOP("LogFinding",
                       "From line %1 of the change sets on the log is sealed with another key."),
     QT_TRANSLATE_NOOP("LogFinding",
                       "From entry %1 of the audit log on the log is sealed with another key.")},
    {QT_TRANSLATE_NOOP("LogFinding", "What came after change set %1 was cut off."),
     QT_TRANSLATE_NOOP("LogFinding", "What came after line %1 of the change sets was cut off."),
     QT_TRANSLATE_NOOP("LogFinding", "What came after entry %1 of the audit log was cut off.")},
};

} // namespace

QString LogFinding::text() const
{
    return kind == OtherLog ? tr("It is not the log that was seen here before.")
                            : tr(texts[kind][table]).arg(entry);
}

} // namespace ko
