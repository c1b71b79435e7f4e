#include "Input.h"

#include "secrets/Redaction.h"

using namespace ko;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString once = Redaction::redacted(fuzz::text(data, size));
    fuzz::require(Redaction::redacted(once) == once, "a second pass changes nothing");
    return 0;
}
