#include "base/ToolRunner.h"

#include <QProcess>
#include <QTimer>
#include <memory>

namespace tarvanel {

void runToolAsync(const ToolRun& run, QObject* context,
                  std::function<void(const ToolResult&)> done) {
    auto* process = new QProcess(context);
    auto* limit = new QTimer(process);
    limit->setSingleShot(true);
    // finished and errorOccurred can both arrive; the first answer wins.
    auto answer = std::make_shared<std::function<void(const ToolResult&)>>(std::move(done));
    auto reply = [process, limit, answer](const ToolResult& result) {
        limit->stop();
        if (!*answer) return;
        auto callback = std::move(*answer);
        *answer = nullptr;
        callback(result);
    };
    // The context's children go after destroyed(): a tool killed with them answers no one.
    QObject::connect(context, &QObject::destroyed, process, [answer] { *answer = nullptr; });
    if (!run.captureOutput) process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    process->setStandardInputFile(QProcess::nullDevice());
    QObject::connect(
        process, &QProcess::finished, process,
        [process, reply, captured = run.captureOutput](int code, QProcess::ExitStatus how) {
            ToolResult r;
            r.status = how == QProcess::NormalExit ? code : -1;
            if (captured) r.output = process->readAllStandardOutput();
            process->deleteLater();
            reply(r);
        });
    QObject::connect(process, &QProcess::errorOccurred, process,
                     [process, reply](QProcess::ProcessError error) {
                         // A crash or a kill also ends in finished(); a failed start never does.
                         if (error != QProcess::FailedToStart) return;
                         process->deleteLater();
                         reply(ToolResult{});
                     });
    QObject::connect(limit, &QTimer::timeout, process, [process, reply] {
        ToolResult r;
        r.timedOut = true;
        reply(r);
        process->kill(); // finished() follows and frees the process
    });
    limit->start(run.timeoutMs);
    process->start(run.program, run.arguments);
}

} // namespace tarvanel
