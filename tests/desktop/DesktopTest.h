#pragma once
// Running the event loop from a test, for a while or until something has happened.
#include <functional>

namespace tarvanel::test {

// Runs the event loop until `done` holds; false when `timeoutMs` passes first.
bool waitFor(const std::function<bool()>& done, int timeoutMs);
inline void pump(int ms) {
    waitFor([] { return false; }, ms);
}

} // namespace tarvanel::test
