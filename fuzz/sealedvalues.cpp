#include "Input.h"

#include "secrets/Sealer.h"

using namespace ko;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const Sealer sealer({Sealer::newKey()});
    const QString owner = QString::fromLatin1("n234567");
    const QString property = QString::fromLatin1("Password");
    const QString text = fuzz::text(data, size);
    fuzz::require(!sealer.open(text, owner, property), "what was not sealed does not open");
    const QString sealed = sealer.seal(text, owner, property);
    fuzz::require(Sealer::isSealed(sealed), "what was sealed looks sealed");
    fuzz::require(sealer.open(sealed, owner, property) == text, "what was sealed opens again");
    return 0;
}
