#include "Input.h"

#include "ko/MACAddress.h"

using namespace ko;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const MACAddress address(fuzz::text(data, size));
    for (const bool separators : {true, false}) {
        const QString text = address.toString(separators);
        fuzz::require(text.size() == (address.isNull() ? 0 : separators ? 17 : 12), "the text is complete");
        fuzz::require(MACAddress(text) == address, "the text gives the address again");
    }
    return 0;
}
