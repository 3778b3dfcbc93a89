#include "desktop/settings/SettingsWindow.h"

#include "app/Agent.h"
#include "base/StateFiles.h"

#include <QAction>
#include <QApplication>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>

namespace tarvanel {

namespace {

// Edit actions go to whichever field has the focus (a line edit, a spin box's editor).
void sendToFocus(const char* slot) {
    QWidget* w = QApplication::focusWidget();
    if (!w) return;
    if (w->metaObject()->indexOfSlot(
            QMetaObject::normalizedSignature((QByteArray(slot) + "()").constData())) >= 0)
        QMetaObject::invokeMethod(w, slot);
}

QAction* add(QMenu* menu, const QString& text, QKeySequence keys, std::function<void()> run) {
    QAction* a = menu->addAction(text);
    a->setShortcut(keys);
    a->setShortcutContext(Qt::WindowShortcut);
    QObject::connect(a, &QAction::triggered, menu, [run] { run(); });
    return a;
}

} // namespace

QString aboutText() {
    return QStringLiteral("Tarvanel ") + QStringLiteral(TARVANEL_VERSION) +
           QStringLiteral("\nPrayer times that lock every screen, so you step away and pray.") +
           QStringLiteral("\n\nLicence: ") + QStringLiteral(TARVANEL_LICENCE) +
           QStringLiteral("\n\nSettings: ") + configURL() +
           QStringLiteral("\nHistory and state: ") + supportDir() + QStringLiteral("\nLog: ") +
           supportPath(QStringLiteral("log.txt")) + QStringLiteral("\nLogin service: ") +
           agentUnitPath();
}

void installMainMenu(QMenuBar* bar, QWidget* window, std::function<void()> openSettings) {
    QMenu* app = bar->addMenu(QStringLiteral("&Tarvanel"));
    QPointer<QWidget> win(window);
    add(app, QStringLiteral("About Tarvanel"), {},
        [win] { QMessageBox::about(win, QStringLiteral("About Tarvanel"), aboutText()); });
    app->addSeparator();
    add(app, QStringLiteral("Settings…"), QKeySequence(Qt::CTRL | Qt::Key_Comma),
        std::move(openSettings));
    app->addSeparator();
    add(app, QStringLiteral("Close Window"), QKeySequence(Qt::CTRL | Qt::Key_W), [win] {
        if (win) win->close();
    });
    QMenu* edit = bar->addMenu(QStringLiteral("&Edit"));
    add(edit, QStringLiteral("Undo"), QKeySequence::Undo, [] { sendToFocus("undo"); });
    add(edit, QStringLiteral("Redo"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z),
        [] { sendToFocus("redo"); });
    edit->addSeparator();
    add(edit, QStringLiteral("Cut"), QKeySequence::Cut, [] { sendToFocus("cut"); });
    add(edit, QStringLiteral("Copy"), QKeySequence::Copy, [] { sendToFocus("copy"); });
    add(edit, QStringLiteral("Paste"), QKeySequence::Paste, [] { sendToFocus("paste"); });
    add(edit, QStringLiteral("Select All"), QKeySequence::SelectAll,
        [] { sendToFocus("selectAll"); });
}

SettingsWindow::SettingsWindow(std::function<void()> openSettings, QObject* parent)
    : QObject(parent), openSettings_(std::move(openSettings)) {}

SettingsWindow::~SettingsWindow() {
    delete window_.data();
}

void SettingsWindow::show(const QString& title, QSize size, QWidget* content) {
    close();
    auto* win = new QMainWindow;
    win->setAttribute(Qt::WA_DeleteOnClose);
    win->setWindowTitle(title);
    win->setCentralWidget(content);
    installMainMenu(win->menuBar(), win, [this] {
        if (openSettings_) openSettings_();
    });
    win->resize(size);
    window_ = win;
    win->show();
    raise();
}

void SettingsWindow::close() {
    if (window_) window_->close();
}

QWidget* SettingsWindow::window() const {
    return window_;
}

void SettingsWindow::raise() {
    if (!window_) return;
    window_->raise();
    window_->activateWindow();
}

} // namespace tarvanel
