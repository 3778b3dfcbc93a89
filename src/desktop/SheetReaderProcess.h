#pragma once
// Reads image and PDF files in the sheet reader, a process of its own per file, and reports
// through the event loop: its progress, what it read, or why it gave nothing. The recogniser
// never runs in this process, so a file that crashes it costs only the reader.
#include "timetable/OcrLines.h"

#include <QList>
#include <QObject>
#include <QString>

class QProcess;

namespace tarvanel {

class SheetReaderProcess : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;
    // Every read under way is killed.
    ~SheetReaderProcess() override;

    // TARVANEL_SHEET_READER when set; otherwise the reader beside this program (the build
    // tree), or the installed one.
    static QString program();

    void read(const QString& path);
    // Kills every read under way; they report nothing.
    void cancel();
    int readsUnderWay() const { return int(processes_.size()); }

signals:
    void progress(int page, int pageCount);
    void finished(const QString& fileName, const SheetReading& reading);
    // The reader is missing, crashed, or ended without an answer; `status` says which.
    void failed(const QString& fileName, const QString& status);

private:
    void ended(QProcess* process, const QString& fileName, const QString& status);

    QList<QProcess*> processes_;
};

} // namespace tarvanel
