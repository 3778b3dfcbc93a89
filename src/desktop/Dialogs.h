#pragma once
// Modal questions: alerts with buttons in the given order, the date question, the save panel,
// and the small note shown in place of the settings window.
#include "platform/Platform.h"

#include <QDialog>
#include <QMessageBox>
#include <memory>

class QDateEdit;

namespace tarvanel {

// The alert for a request: buttons left to right in the request's order, the first the default
// (the last when the first is destructive).
std::unique_ptr<QMessageBox> buildAlert(const AlertRequest& request);
// 1000 + the index of the clicked button; cancelling (Escape, closing) answers the last button.
AlertAnswer alertAnswer(const QMessageBox& box);
// Every question opens in the middle of the primary screen, where the user looks first, not
// on whichever monitor the pointer last crossed.
AlertAnswer runAlert(const AlertRequest& request);
void placeOnPrimaryScreen(QWidget* window);

class DateQuestion : public QDialog {
    Q_OBJECT
public:
    DateQuestion(const AlertRequest& request, const QDate& minimum, const QDate& initial);
    QDateEdit* dateEdit() const { return edit_; }
    QList<QPushButton*> buttons() const { return buttons_; }

private:
    QDateEdit* edit_;
    QList<QPushButton*> buttons_;
};
std::optional<QDate> runDateQuestion(const AlertRequest& request, const QDate& minimum,
                                     const QDate& initial);

std::optional<QString> runSavePanel(const QString& proposedName);

} // namespace tarvanel
