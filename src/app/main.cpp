// Process entry: terminal commands run and exit; anything else starts the tray application.
#include "app/Agent.h"
#include "app/CommandLine.h"
#include "desktop/DesktopApp.h"
#include "engine/Clock.h"
#include "engine/Config.h"

#include <QStringList>
#include <cstdio>

using namespace tarvanel;

static void write(const QString& text, FILE* stream) {
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stream);
    std::fflush(stream);
}
static void print(const QString& text) {
    write(text, stdout);
}
static void printError(const QString& text) {
    write(text, stderr);
}

int main(int argc, char** argv) {
    QStringList args;
    for (int i = 0; i < argc; ++i)
        args << QString::fromLocal8Bit(argv[i]);
    const CommandLine cl = parseCommandLine(args);

    if (cl.times) {
        const Config cfg = loadConfig();
        if (const auto& error = lastConfigError())
            printError(QStringLiteral("tarvanel: config.json is invalid (") + *error +
                       QStringLiteral("); printing the default settings' times\n"));
        print(timesText(cfg, timesDay(cl, systemNow())));
        return 0;
    }
    if (cl.help) {
        print(usageText());
        return 0;
    }
    if (cl.version) {
        print(QStringLiteral("tarvanel " TARVANEL_VERSION "\n"));
        return 0;
    }
    if (cl.unknownOption) {
        printError(QStringLiteral("tarvanel: unknown option ") + *cl.unknownOption +
                   QStringLiteral("\n") + usageText());
        return 2;
    }
    if (cl.installAgent) {
        const bool ok = installAgent();
        print(ok ? QStringLiteral("✓ Tarvanel running — look for 🕌 in the menu bar\n")
                 : QStringLiteral("✗ launchctl bootstrap failed\n"));
        return ok ? 0 : 1;
    }
    return runDesktopApplication(argc, argv, cl);
}
