#include "desktop/SheetReaderProcess.h"

#include "base/Log.h"
#include "timetable/ReaderMessages.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <memory>
#include <optional>
#include <utility>

namespace tarvanel {

namespace {

const QString readerName = QStringLiteral("tarvanel-sheet-reader");

QString crashed(const QString& fileName) {
    //: %1 the name of the photo or PDF being read
    return QCoreApplication::translate("ImportWindow",
                                       "The reader stopped unexpectedly while reading %1. Nothing "
                                       "was changed: try another photo or PDF, or paste the text.")
        .arg(fileName);
}

QString missing(const QString& program) {
    //: %1 the path of the program that reads photos and PDFs
    return QCoreApplication::translate("ImportWindow",
                                       "Photos and PDFs can't be read: the reader is missing (%1). "
                                       "Paste the text instead, or reinstall Tarvanel.")
        .arg(program);
}

} // namespace

SheetReaderProcess::~SheetReaderProcess() {
    cancel();
}

QString SheetReaderProcess::program() {
    if (const QString chosen = qEnvironmentVariable("TARVANEL_SHEET_READER"); !chosen.isEmpty())
        return chosen;
    const QString beside = QCoreApplication::applicationDirPath() + u'/' + readerName;
    if (QFileInfo(beside).isExecutable()) return beside;
    return QStringLiteral(TARVANEL_LIBEXEC_DIR "/") + readerName;
}

void SheetReaderProcess::read(const QString& path) {
    auto* process = new QProcess(this);
    processes_ << process;
    const QString fileName = QFileInfo(path).fileName();
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    // Tesseract's OpenMP threads spin against each other on a small machine; the limit is read
    // as the reader starts.
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("OMP_THREAD_LIMIT"), QStringLiteral("1"));
    process->setProcessEnvironment(env);
    auto answer = std::make_shared<std::optional<SheetReading>>();
    auto pending = std::make_shared<QByteArray>();
    auto drain = [this, process, answer, pending] {
        *pending += process->readAllStandardOutput();
        for (qsizetype end = pending->indexOf('\n'); end >= 0; end = pending->indexOf('\n')) {
            const ReaderMessages::Message message = ReaderMessages::parse(pending->left(end));
            pending->remove(0, end + 1);
            if (message.kind == ReaderMessages::Message::Progress)
                emit progress(message.page, message.pageCount);
            else if (message.kind == ReaderMessages::Message::Reading)
                *answer = message.reading;
        }
    };
    connect(process, &QProcess::readyReadStandardOutput, this, drain);
    connect(process, &QProcess::finished, this,
            [this, process, fileName, answer, drain](int, QProcess::ExitStatus status) {
                drain();
                if (status == QProcess::NormalExit && *answer) {
                    processes_.removeOne(process);
                    process->deleteLater();
                    emit finished(fileName, **answer);
                    return;
                }
                ended(process, fileName, crashed(fileName));
            });
    connect(process, &QProcess::errorOccurred, this,
            [this, process, fileName](QProcess::ProcessError error) {
                if (error == QProcess::FailedToStart)
                    ended(process, fileName, missing(process->program()));
            });
    process->start(program(), {path});
}

void SheetReaderProcess::ended(QProcess* process, const QString& fileName, const QString& status) {
    if (!processes_.removeOne(process)) return; // reported already
    process->deleteLater();
    logLine(QStringLiteral("Tarvanel: the sheet reader gave nothing for ") + fileName +
            QStringLiteral(" (") + process->program() + QStringLiteral(", ") +
            process->errorString() + QStringLiteral(")"));
    emit failed(fileName, status);
}

void SheetReaderProcess::cancel() {
    for (QProcess* process : std::exchange(processes_, {})) {
        process->disconnect(this);
        process->kill();
        // Reaped at once: SIGKILL cannot be caught, so this is quick.
        process->waitForFinished(500);
        delete process;
    }
}

} // namespace tarvanel
