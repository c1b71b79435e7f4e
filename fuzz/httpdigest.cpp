#include "Input.h"

#include "devices/HttpDigest.h"

using namespace ko;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray challenges(reinterpret_cast<const char*>(data), int(size));
    HttpDigest digest(challenges);
    HttpDigest::offersBasic(challenges);
    if (!digest.isValid())
        return 0;
    const QString secret = QStringLiteral("Circle Of Life 4711");
    const QByteArray header = digest.authorization(QStringLiteral("Mufasa"), secret, "POST", "/onvif");
    fuzz::require(header.startsWith("Digest username=\"Mufasa\", realm=\""), "it is a digest");
    fuzz::require(!header.contains('\r') && !header.contains('\n'), "it is one header");
    fuzz::require(!header.contains(secret.toUtf8()) || challenges.contains(secret.toUtf8()),
                  "the password is not told");
    return 0;
}
