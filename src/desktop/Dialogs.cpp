#include "desktop/Dialogs.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QDateEdit>
#include <QDir>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace tarvanel {

namespace {
void bringToFront(QWidget* w) {
    w->setWindowFlag(Qt::WindowStaysOnTopHint);
    placeOnPrimaryScreen(w);
    w->raise();
    w->activateWindow();
}
} // namespace

void placeOnPrimaryScreen(QWidget* window) {
    QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen) return;
    window->setScreen(screen);
    window->adjustSize();
    QRect frame(QPoint(), window->size());
    frame.moveCenter(screen->availableGeometry().center());
    // Moved by hand, a dialog keeps this place when it shows instead of following the pointer.
    window->move(frame.topLeft());
}

std::unique_ptr<QMessageBox> buildAlert(const AlertRequest& request) {
    auto box = std::make_unique<QMessageBox>();
    box->setWindowTitle(QStringLiteral("Tarvanel"));
    box->setIcon(request.firstIsDestructive ? QMessageBox::Warning : QMessageBox::Information);
    box->setText(request.message);
    box->setInformativeText(request.info);
    box->setTextFormat(Qt::PlainText);
    // One role for all keeps the caller's order; other roles are reordered by the style.
    QList<QPushButton*> buttons;
    for (const QString& label : request.buttons)
        buttons << box->addButton(label, QMessageBox::ActionRole);
    if (buttons.isEmpty())
        buttons << box->addButton(QCoreApplication::translate("Dialogs", "OK"),
                                  QMessageBox::ActionRole);
    // Return must never take a destructive answer: such a question defaults to the last
    // button, its way out.
    box->setDefaultButton(request.firstIsDestructive ? buttons.last() : buttons.first());
    box->setEscapeButton(buttons.last());
    if (!request.checkBox.isEmpty()) box->setCheckBox(new QCheckBox(request.checkBox));
    return box;
}

AlertAnswer alertAnswer(const QMessageBox& box) {
    AlertAnswer answer;
    // With one role for all, buttons() lists them in the order they were added.
    const QList<QAbstractButton*> ordered = box.buttons();
    const int index = ordered.indexOf(box.clickedButton());
    answer.response = 1000 + (index < 0 ? int(ordered.size()) - 1 : index);
    answer.checkBoxOn = box.checkBox() && box.checkBox()->isChecked();
    return answer;
}

AlertAnswer runAlert(const AlertRequest& request) {
    auto box = buildAlert(request);
    bringToFront(box.get());
    box->exec();
    return alertAnswer(*box);
}

DateQuestion::DateQuestion(const AlertRequest& request, const QDate& minimum,
                           const QDate& initial) {
    setWindowTitle(QStringLiteral("Tarvanel"));
    auto* column = new QVBoxLayout(this);
    auto* message = new QLabel(request.message, this);
    QFont bold = message->font();
    bold.setBold(true);
    message->setFont(bold);
    message->setWordWrap(true);
    column->addWidget(message);
    if (!request.info.isEmpty()) {
        auto* info = new QLabel(request.info, this);
        info->setWordWrap(true);
        column->addWidget(info);
    }
    edit_ = new QDateEdit(this);
    edit_->setCalendarPopup(true);
    edit_->setMinimumDate(minimum);
    edit_->setDate(std::max(initial, minimum));
    column->addWidget(edit_);
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    const QStringList labels = request.buttons.isEmpty()
                                   ? QStringList{QCoreApplication::translate("Dialogs", "OK")}
                                   : request.buttons;
    for (int i = 0; i < labels.size(); ++i) {
        auto* button = new QPushButton(labels.at(i), this);
        if (i == 0) {
            button->setDefault(true);
            connect(button, &QPushButton::clicked, this, &QDialog::accept);
        } else {
            connect(button, &QPushButton::clicked, this, &QDialog::reject);
        }
        row->addWidget(button);
        buttons_ << button;
    }
    column->addLayout(row);
}

std::optional<QDate> runDateQuestion(const AlertRequest& request, const QDate& minimum,
                                     const QDate& initial) {
    DateQuestion dialog(request, minimum, initial);
    bringToFront(&dialog);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return dialog.dateEdit()->date();
}

std::optional<QString> runSavePanel(const QString& proposedName) {
    const QString path = QFileDialog::getSaveFileName(
        nullptr, QCoreApplication::translate("Dialogs", "Export History"),
        QDir::home().filePath(proposedName),
        //: A file type filter; keep the part in brackets as it is
        QCoreApplication::translate("Dialogs", "Comma-separated values (*.csv)"));

    if (path.isEmpty()) return std::nullopt;
    return path;
}

} // namespace tarvanel
