#include "Input.h"

#include "model/Redaction.h"

using namespace ko;

/// Redacting again changes nothing; and whatever stands around it, the password of a URL on a line of its own
/// goes.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString text = fuzz::text(data, size);
    const QString once = Redaction::redacted(text);
    fuzz::require(Redaction::redacted(once) == once, "a second pass changes nothing");
    const QString password = QLatin1String("Kq1zSecret");
    const int middle = int(text.size()) / 2;
    const QString around = text.left(middle) + QLatin1String("\nrtsp://u:") + password +
                           QLatin1String("@10.0.0.1/\n") + text.mid(middle);
    fuzz::require(Redaction::redacted(around).count(password) <= text.count(password),
                  "no password in a URL stays");
    return 0;
}
