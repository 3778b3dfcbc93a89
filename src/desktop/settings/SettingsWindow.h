#pragma once
// The window host shared by the settings form and the timetable import view: one top-level
// window at a time with the application menu (About, Settings… Ctrl+,, Close Window Ctrl+W, and
// the Edit menu).
#include <QMainWindow>
#include <QObject>
#include <QPointer>
#include <QSize>
#include <QString>
#include <functional>

class QMenuBar;
class QWidget;

namespace tarvanel {

// The application menu on a window's menu bar; "Settings…" calls `openSettings`.
void installMainMenu(QMenuBar* bar, QWidget* window, std::function<void()> openSettings);
// The About text: version, licence and where the files live.
QString aboutText();

class SettingsWindow : public QObject {
    Q_OBJECT
public:
    explicit SettingsWindow(std::function<void()> openSettings, QObject* parent = nullptr);
    ~SettingsWindow() override;

    // Opens a window showing `content` (which it then owns), replacing any open one.
    void show(const QString& title, QSize size, QWidget* content);
    bool isOpen() const { return window_ != nullptr; }
    void close();
    QWidget* window() const;
    void raise();

private:
    std::function<void()> openSettings_;
    QPointer<QMainWindow> window_;
};

} // namespace tarvanel
