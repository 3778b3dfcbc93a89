#include "desktop/TimetableImportView.h"
#include "support/TestEnv.h"
#include "timetable/Timetable.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QFile>
#include <QGroupBox>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace tarvanel;

static void press(QWidget* widget, int key) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

TEST(TimetableImportViewTest, PastedSheetFillsPickersPreviewAndSaves) {
    std::optional<DayTable> saved;
    int cancelled = 0;
    TimetableImportView view([&](const DayTable& days) { saved = days; }, [&] { ++cancelled; });
    view.show();
    QPushButton* use = nullptr;
    for (auto* b : view.findChildren<QPushButton*>())
        if (b->text() == "Use This Timetable") use = b;
    EXPECT_FALSE(use->isEnabled());
    press(&view, Qt::Key_Return);
    EXPECT_FALSE(saved);

    view.findChild<QPlainTextEdit*>()->setPlainText(
        "April 2026\n1 Wed 5:01 1:10 4:20 7:30 8:40\n2 Thu 5:02 1:11 4:21 7:31 "
        "8:41\n");
    EXPECT_TRUE(use->isEnabled());
    // Every control is named as it reads; the pickers offer "Not in the timetable" and 5 columns.
    QStringList names;
    for (auto* box : view.findChildren<QComboBox*>()) {
        names << box->accessibleName();
        if (box->accessibleName() == "Jumu'ah") {
            EXPECT_EQ(box->count(), 6);
            EXPECT_EQ(box->currentText(), "Not in the timetable");
            EXPECT_EQ(box->itemText(3), "Column 3  \u00B7  4:20");
        }
        if (box->accessibleName() == "Month") {
            EXPECT_EQ(box->currentIndex(), 3);
        }
    }
    EXPECT_EQ(names, QStringList({"Fajr", "Dhuhr", "Asr", "Maghrib", "Isha", "Jumu'ah", "Month"}));
    EXPECT_EQ(view.findChild<QSpinBox*>()->text(), "2026");
    EXPECT_EQ(view.findChildren<QGroupBox*>().last()->title(), "3. Preview (2 days)");
    bool previewRow = false;
    for (auto* label : view.findChildren<QLabel*>())
        previewRow |= label->text() == "Faj 05:02  Dhu 13:11  Asr 16:21  Mag 19:31  Ish 20:41";
    EXPECT_TRUE(previewRow);

    press(&view, Qt::Key_Return);
    ASSERT_TRUE(saved);
    EXPECT_EQ(saved->keys(), QStringList({"2026-04-01", "2026-04-02"}));
    press(&view, Qt::Key_Escape);
    EXPECT_EQ(cancelled, 1);
}

TEST(TimetableImportViewTest, RowsThatWouldBeDroppedAreNamedMarkedAndMendedBeforeSaving) {
    test::wipeScratchHome();
    Timetable::resetCacheForTesting();
    int used = 0;
    TimetableImportView* view = openTimetableImport(QString(), [&] { ++used; });
    auto* editor = view->findChild<QPlainTextEdit*>();
    QLabel* problems = nullptr;
    for (auto* label : view->findChildren<QLabel*>())
        if (label->text().contains("can't be used")) problems = label;
    EXPECT_EQ(problems, nullptr);

    // Day 2 lost its Isha cell: the row is named, marked pink, and the click finds it.
    editor->setPlainText("April 2026\n1 Wed 5:01 1:10 4:20 7:30 8:40\n2 Thu 5:02 1:11 4:21 "
                         "7:31\n3 Fri 5:03 1:12 4:22 7:32 8:42\n");
    for (auto* label : view->findChildren<QLabel*>())
        if (label->text().contains("can't be used")) problems = label;
    ASSERT_NE(problems, nullptr);
    EXPECT_EQ(problems->text(),
              "1 row can't be used: 2 April is missing a time in a chosen column.");
    EXPECT_EQ(problems->accessibleName(), problems->text());
    EXPECT_TRUE(problems->isVisibleTo(view));
    ASSERT_EQ(editor->extraSelections().size(), 1);
    EXPECT_EQ(editor->extraSelections()[0].cursor.blockNumber(), 2);
    QMouseEvent click(QEvent::MouseButtonRelease, QPointF(4, 4), QPointF(4, 4), Qt::LeftButton,
                      Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(problems, &click);
    EXPECT_EQ(editor->textCursor().blockNumber(), 2);
    EXPECT_EQ(editor->textCursor().positionInBlock(), 0);

    // The user types the missing time; the row counts again and all three days are saved.
    QTextCursor cursor = editor->textCursor();
    cursor.movePosition(QTextCursor::EndOfBlock);
    cursor.insertText(" 8:41");
    EXPECT_FALSE(problems->isVisibleTo(view));
    EXPECT_TRUE(editor->extraSelections().isEmpty());
    EXPECT_EQ(view->findChildren<QGroupBox*>().last()->title(), "3. Preview (3 days)");
    QPointer<TimetableImportView> alive(view);
    press(view, Qt::Key_Return);
    EXPECT_EQ(used, 1);
    test::waitFor([&] { return alive.isNull(); }, 2000);
    QFile file(Timetable::url());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QJsonObject saved = QJsonDocument::fromJson(file.readAll()).object();
    EXPECT_EQ(saved.keys(), QStringList({"2026-04-01", "2026-04-02", "2026-04-03"}));
    EXPECT_EQ(saved["2026-04-02"].toObject()["Isha"].toString(), "20:41");
}

TEST(TimetableImportViewTest, CellsSettledFromTheirNeighboursAreMarkedUntilTypedOver) {
    TimetableImportView view([](const DayTable&) {}, [] {});
    auto* editor = view.findChild<QPlainTextEdit*>();
    TimetableImportModel& model = view.model();
    model.imageReadStarted("sheet.png");
    model.imageReadFinished("sheet.png", {{"March 2026", "1  5:01  1:10  4:20  7:30  8:40",
                                           "2  5:02  1:11  4:21  7:31  8:41"},
                                          {{1, 9, 4}, {2, 0, 1}},
                                          1,
                                          1});
    QStringList marked;
    for (const QTextEdit::ExtraSelection& s : editor->extraSelections())
        marked << s.cursor.selectedText();
    EXPECT_EQ(marked, QStringList({"1:10", "2"}));
    auto note = [&] {
        for (auto* label : view.findChildren<QLabel*>())
            if (label->text().contains("hard to read") && label->isVisibleTo(&view))
                return label->text();
        return QString();
    };
    EXPECT_EQ(note(), "2 cells were hard to read and are marked in yellow: check them against the "
                      "sheet.");
    // Typing elsewhere moves the marks along; typing over one removes it.
    QTextCursor start(editor->document());
    start.insertText("Masjid ");
    QTextCursor cell = editor->extraSelections()[0].cursor;
    EXPECT_EQ(cell.selectedText(), "1:10");
    cell.insertText("1:15");
    marked.clear();
    for (const QTextEdit::ExtraSelection& s : editor->extraSelections())
        marked << s.cursor.selectedText();
    EXPECT_EQ(marked, QStringList({"2"}));
    EXPECT_EQ(note(),
              "1 cell was hard to read and is marked in yellow: check it against the sheet.");
    EXPECT_EQ(model.days().value("2026-03-01").value("Dhuhr"), "13:15");
}

namespace {

// A stand-in for the sheet reader: a shell script that gets the file's path as the real one.
QString fakeReader(const QTemporaryDir& dir, const QByteArray& body) {
    const QString path = dir.filePath("reader.sh");
    QFile script(path);
    EXPECT_TRUE(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\n" + body + "\n");
    script.close();
    script.setPermissions(script.permissions() | QFileDevice::ExeOwner);
    return path;
}

QLabel* labelSaying(QWidget* view, const QString& start) {
    for (auto* label : view->findChildren<QLabel*>())
        if (label->text().startsWith(start)) return label;
    return nullptr;
}

} // namespace

TEST(TimetableImportViewTest, AReaderThatCrashesOrIsMissingLeavesAStatusAndAUsableWindow) {
    QTemporaryDir dir;
    const QByteArray before = qgetenv("TARVANEL_SHEET_READER");
    // Says it started on the first of three pages, a little later falls over.
    qputenv("TARVANEL_SHEET_READER",
            fakeReader(dir, "echo '{\"page\":1,\"pages\":3}'; sleep 0.3; kill -SEGV $$").toUtf8());
    TimetableImportView* view = openTimetableImport(QString(), {});
    auto* editor = view->findChild<QPlainTextEdit*>();
    editor->setPlainText("April 2026\n1 Wed 5:01 1:10 4:20 7:30 8:40\n");
    view->openFile(dir.filePath("sheet.png"));
    EXPECT_TRUE(view->model().reading());
    EXPECT_NE(labelSaying(view, "Reading sheet.png\u2026"), nullptr);
    EXPECT_TRUE(test::waitFor([&] { return labelSaying(view, "Reading page 1 of 3"); }, 5000));
    ASSERT_TRUE(test::waitFor([&] { return !view->model().reading(); }, 5000));
    const QString crashed = "The reader stopped unexpectedly while reading sheet.png. Nothing was "
                            "changed: try another photo or PDF, or paste the text.";
    QLabel* status = labelSaying(view, crashed);
    ASSERT_NE(status, nullptr);
    EXPECT_EQ(status->accessibleName(), crashed);
    EXPECT_FALSE(view->findChild<QProgressBar*>()->isVisible());
    EXPECT_EQ(editor->toPlainText(), "April 2026\n1 Wed 5:01 1:10 4:20 7:30 8:40\n");
    // The window goes on working: typed rows count and can be used.
    editor->appendPlainText("2 Thu 5:02 1:11 4:21 7:31 8:41");
    EXPECT_EQ(view->findChildren<QGroupBox*>().last()->title(), "3. Preview (2 days)");

    // No reader where it should be: said at once, with where it was looked for.
    qputenv("TARVANEL_SHEET_READER", dir.filePath("gone/tarvanel-sheet-reader").toUtf8());
    view->openFile(dir.filePath("sheet.pdf"));
    ASSERT_TRUE(test::waitFor([&] { return !view->model().reading(); }, 5000));
    EXPECT_EQ(view->model().status(), "Photos and PDFs can't be read: the reader is missing (" +
                                          dir.filePath("gone/tarvanel-sheet-reader") +
                                          "). Paste the text instead, or reinstall Tarvanel.");
    EXPECT_EQ(view->model().days().size(), 2);

    // A reader that answers nothing but ends normally reads as a crash too; its noise on
    // standard output is ignored.
    qputenv("TARVANEL_SHEET_READER", fakeReader(dir, "echo not json; exit 0").toUtf8());
    view->openFile(dir.filePath("sheet.png"));
    ASSERT_TRUE(test::waitFor([&] { return !view->model().reading(); }, 5000));
    EXPECT_EQ(view->model().status(), crashed);
    view->window()->close();
    qputenv("TARVANEL_SHEET_READER", before);
}
