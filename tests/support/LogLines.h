#ifndef TESTS_SUPPORT_LOGLINES_H
#define TESTS_SUPPORT_LOGLINES_H

#include "ko/LogQt.h"

#include <QStringList>

namespace testsupport {

/// Collects what is written to the program log while it is there.
class LogLines : public ko::LogSink
{
public:
    LogLines() { ko::LogQt::instance().setSink(this); }
    ~LogLines() override { ko::LogQt::instance().setSink(nullptr); }
    void write(int, const QString& line) override { lines.append(line); }
    QStringList lines;
};

} // namespace testsupport

#endif
