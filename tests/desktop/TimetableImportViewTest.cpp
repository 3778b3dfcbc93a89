#include "desktop/TimetableImportView.h"
#include "DesktopTest.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
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
