// Any bytes as the location service's answer.
#include "FuzzHome.h"
#include "records/Modes.h"
#include "records/TravelLocator.h"

#include <cmath>

using namespace tarvanel;

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    fuzz::setUpHome();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray body(reinterpret_cast<const char*>(data), qsizetype(size));
    const auto found = TravelLocator::parseReply(body);
    if (!found) return 0;
    static TravelLocator locator;
    locator.applyLocation(*found);
    if (std::isnan(distanceKm(found->lat, found->lon, 51.5, -0.1))) abort();
    return 0;
}
