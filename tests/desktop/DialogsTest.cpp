// Alerts keep the caller's button order and answer 1000 + the button's index.
#include "desktop/Dialogs.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTimer>
#include <gtest/gtest.h>

using namespace tarvanel;

namespace {
AlertRequest didYouPray() {
    return {QStringLiteral("Did you pray Asr?"),
            QStringLiteral("“Not yet” locks the screen again for 5 minutes."),
            {QStringLiteral("Yes, I Prayed"), QStringLiteral("Not Yet")},
            {},
            false};
}
// Buttons as laid out, left to right.
QList<QAbstractButton*> laidOut(QMessageBox& box) {
    box.show();
    QList<QAbstractButton*> buttons = box.buttons();
    std::sort(buttons.begin(), buttons.end(), [&](QAbstractButton* a, QAbstractButton* b) {
        return a->mapTo(&box, QPoint()).x() < b->mapTo(&box, QPoint()).x();
    });
    return buttons;
}
} // namespace

TEST(Alerts, ButtonsInOrderAndAnswers) {
    auto box = buildAlert(didYouPray());
    EXPECT_EQ(box->text(), QStringLiteral("Did you pray Asr?"));
    EXPECT_EQ(box->informativeText(), didYouPray().info);
    const QList<QAbstractButton*> buttons = laidOut(*box);
    ASSERT_EQ(buttons.size(), 2);
    EXPECT_EQ(buttons[0]->text(), QStringLiteral("Yes, I Prayed"));
    EXPECT_EQ(buttons[1]->text(), QStringLiteral("Not Yet"));
    EXPECT_EQ(box->defaultButton(), buttons[0]);

    QTimer::singleShot(0, buttons[1], [b = buttons[1]] { b->click(); });
    box->exec();
    EXPECT_EQ(alertAnswer(*box).response, 1001);
    QTimer::singleShot(0, buttons[0], [b = buttons[0]] { b->click(); });
    box->exec();
    EXPECT_EQ(alertAnswer(*box).response, 1000);
    box->hide();
}

TEST(Alerts, ThreeButtonsAndTheCheckBox) {
    AlertRequest request{
        QStringLiteral("Uninstall Tarvanel?"),
        QStringLiteral("Your prayer times stop locking the screen."),
        {QStringLiteral("Uninstall"), QStringLiteral("Cancel"), QStringLiteral("Later")},
        QStringLiteral("Also delete my data"),
        true};
    auto box = buildAlert(request);
    const QList<QAbstractButton*> buttons = laidOut(*box);
    ASSERT_EQ(buttons.size(), 3);
    EXPECT_EQ(buttons[2]->text(), QStringLiteral("Later"));
    ASSERT_NE(box->checkBox(), nullptr);
    EXPECT_EQ(box->checkBox()->text(), QStringLiteral("Also delete my data"));
    EXPECT_FALSE(box->checkBox()->isChecked());
    box->checkBox()->setChecked(true);
    QTimer::singleShot(0, buttons[2], [b = buttons[2]] { b->click(); });
    box->exec();
    const AlertAnswer answer = alertAnswer(*box);
    EXPECT_EQ(answer.response, 1002);
    EXPECT_TRUE(answer.checkBoxOn);
    box->hide();

    // Escape answers with the last button, never with the first.
    auto escaped = buildAlert(didYouPray());
    QTimer::singleShot(0, escaped.get(), [b = escaped.get()] { b->reject(); });
    escaped->exec();
    EXPECT_EQ(alertAnswer(*escaped).response, 1001);
}

TEST(DateQuestion, NeverEarlierThanTheMinimum) {
    const QDate minimum(2026, 3, 10);
    DateQuestion question(didYouPray(), minimum, QDate(2026, 3, 1));
    EXPECT_EQ(question.dateEdit()->date(), minimum);
    question.dateEdit()->setDate(QDate(2026, 2, 1));
    EXPECT_EQ(question.dateEdit()->date(), minimum);
    ASSERT_EQ(question.buttons().size(), 2);
    EXPECT_EQ(question.buttons()[0]->text(), QStringLiteral("Yes, I Prayed"));
    QTimer::singleShot(0, &question, [&] { question.buttons()[1]->click(); });
    EXPECT_EQ(question.exec(), QDialog::Rejected);
    QTimer::singleShot(0, &question, [&] { question.buttons()[0]->click(); });
    EXPECT_EQ(question.exec(), QDialog::Accepted);
}

TEST(SettingsNote, NamesTheSettingsFileInOneLine) {
    SettingsNote note(true, QStringLiteral("/home/u/.tarvanel/config.json"));
    EXPECT_EQ(note.windowTitle(), QStringLiteral("Welcome to Tarvanel"));
    const QString text = SettingsNote::text(QStringLiteral("/home/u/.tarvanel/config.json"));
    EXPECT_TRUE(text.contains(QStringLiteral("/home/u/.tarvanel/config.json")));
    EXPECT_FALSE(text.contains(QLatin1Char('\n')));
}
