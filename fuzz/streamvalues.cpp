#include "Input.h"

#include "utils/NodeDBUtils.h"

using namespace ko;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString text = fuzz::text(data, size);
    int width = 0;
    int height = 0;
    NodeDBUtils::StringToResolution(text, width, height);
    fuzz::require(width >= -1 && height >= -1, "a resolution is not negative");
    const QString resolution = NodeDBUtils::ResolutionToString(width, height);
    fuzz::require(resolution.isEmpty() || NodeDBUtils::sm_Resolutions.contains(resolution),
                  "a resolution is one of the list");
    const float rate = NodeDBUtils::StringToFramerate(text);
    fuzz::require(rate >= 0, "a frame rate is not negative");
    const QString rateText = NodeDBUtils::FramerateToString(rate);
    fuzz::require(rateText.isEmpty() || NodeDBUtils::sm_Framerates.contains(rateText),
                  "a frame rate is one of the list");
    const int quality = NodeDBUtils::StringToQuality(text);
    fuzz::require(quality >= -1 && quality <= 99, "a quality has at most two digits");
    const QString qualityText = NodeDBUtils::QualityToString(quality);
    fuzz::require(qualityText.isEmpty() || NodeDBUtils::StringToQuality(qualityText) == quality,
                  "a quality of the list stays the same");
    return 0;
}
