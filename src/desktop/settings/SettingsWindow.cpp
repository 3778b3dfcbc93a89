#include "desktop/settings/SettingsWindow.h"

#include "app/Agent.h"
#include "base/StateFiles.h"

#include <QAction>
#include <QApplication>
#include <QCoreApplication>
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
    //: %1 the version number, %2 the licence's name, %3 the settings file, %4 the folder of
    //: history and state, %5 the log file, %6 the login service's file. Keep the line breaks.
    return QCoreApplication::translate("About",
                                       "Tarvanel %1\nPrayer times that lock every screen, so you "
                                       "step away and pray.\n\nLicence: %2\n\nSettings: %3\n"
                                       "History and state: %4\nLog: %5\nLogin service: %6")
        .arg(QStringLiteral(TARVANEL_VERSION), QStringLiteral(TARVANEL_LICENCE), configURL(),
             supportDir(), supportPath(QStringLiteral("log.txt")), agentUnitPath());
}

void installMainMenu(QMenuBar* bar, QWidget* window, std::function<void()> openSettings) {
    QMenu* app = bar->addMenu(QStringLiteral("&Tarvanel"));
    QPointer<QWidget> win(window);
    const QString about = QCoreApplication::translate("MainMenu", "About Tarvanel");
    add(app, about, {}, [win, about] {
        // Not QMessageBox::about: its button speaks only the languages Qt's catalogues have.
        QMessageBox box(QMessageBox::NoIcon, about, aboutText(), QMessageBox::NoButton, win);
        if (!QApplication::windowIcon().isNull())
            box.setIconPixmap(QApplication::windowIcon().pixmap(64));
        box.addButton(QCoreApplication::translate("Dialogs", "OK"), QMessageBox::AcceptRole);
        box.exec();
    });
    app->addSeparator();
    add(app, QCoreApplication::translate("MainMenu", "Settings…"),
        QKeySequence(Qt::CTRL | Qt::Key_Comma), std::move(openSettings));
    app->addSeparator();
    add(app, QCoreApplication::translate("MainMenu", "Close Window"),
        QKeySequence(Qt::CTRL | Qt::Key_W), [win] {
            if (win) win->close();
        });
    //: The Edit menu; the & marks its Alt key letter
    QMenu* edit = bar->addMenu(QCoreApplication::translate("MainMenu", "&Edit"));
    add(edit, QCoreApplication::translate("MainMenu", "Undo"), QKeySequence::Undo,
        [] { sendToFocus("undo"); });
    add(edit, QCoreApplication::translate("MainMenu", "Redo"),
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), [] { sendToFocus("redo"); });
    edit->addSeparator();
    add(edit, QCoreApplication::translate("MainMenu", "Cut"), QKeySequence::Cut,
        [] { sendToFocus("cut"); });
    add(edit, QCoreApplication::translate("MainMenu", "Copy"), QKeySequence::Copy,
        [] { sendToFocus("copy"); });
    add(edit, QCoreApplication::translate("MainMenu", "Paste"), QKeySequence::Paste,
        [] { sendToFocus("paste"); });
    add(edit, QCoreApplication::translate("MainMenu", "Select All"), QKeySequence::SelectAll,
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
