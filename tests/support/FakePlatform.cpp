#include "support/FakePlatform.h"

namespace tarvanel::test {

void FakePlatform::runPosted() {
    while (!posted.isEmpty())
        posted.takeFirst()();
}

} // namespace tarvanel::test
