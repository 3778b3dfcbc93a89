#pragma once
// What the program's entry hands the controller: test options, and the login service's part,
// which lives above the controller.
#include <functional>
#include <optional>

namespace tarvanel {

struct ControllerOptions {
    std::optional<double> testLockSeconds; // a test lock of this many seconds at start
    bool testNudge = false;                // a test reminder at start
    // Started by the login service: a plain quit exits with status 1, which restarts it.
    bool underService = false;
    // True once the program file on disk is no longer the running one.
    std::function<bool()> programReplaced;
    // Stops the login service, removes the program (and the user's data when asked) and ends
    // the process.
    std::function<void(bool deleteData)> removeProgram;
};

} // namespace tarvanel
