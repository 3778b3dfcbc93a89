#pragma once
// The status item: a tray icon painted from the title, the title as its tooltip, and a menu
// rebuilt from the core's model each time it opens. Created once a tray host is up.
#include "menubar/MenuModel.h"
#include "platform/Platform.h"

#include <QIcon>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>

class QMenu;
class QSystemTrayIcon;

namespace tarvanel {

// The icon for a title: the emblem (a mosque, or a crescent for "🌙" titles) in the colour,
// with the minutes of an "… in 23m" countdown written beneath when there are any.
QImage trayImage(const QString& title, TitleColor color, int size);
// "23" from "🕌 Dhuhr in 23m"; absent for titles with hours or without a countdown.
std::optional<QString> titleMinutes(const QString& title);

// Fills `menu` with the model: separators, disabled information, commands with their tag,
// submenus, the monospaced grid rows and shortcuts. Commands run after the menu has closed.
void fillMenu(QMenu* menu, const MenuModel& model);

class TrayIcon : public QObject {
    Q_OBJECT
public:
    using MenuProvider = std::function<MenuModel()>;

    explicit TrayIcon(QObject* parent = nullptr);
    ~TrayIcon() override;

    void setMenuProvider(MenuProvider provider) { provider_ = std::move(provider); }
    void setTitle(const QString& title, TitleColor color);
    // Creates the icon when a tray host is there; true once it exists.
    bool ensureCreated();
    QSystemTrayIcon* icon() const { return icon_; }
    QMenu* menu() const { return menu_.get(); }
    // Rebuilds the menu from the model, as opening it does.
    void rebuildMenu();
    // A notification from the icon: now when it exists, else kept (only the latest) until a
    // tray host appears. True when shown now.
    bool announce(const QString& title, const QString& text);
    // The notification still waiting for a tray host, as "title: text"; empty when none.
    QString waitingAnnouncement() const;

private:
    void refreshIcon();

    MenuProvider provider_;
    QSystemTrayIcon* icon_ = nullptr;
    std::unique_ptr<QMenu> menu_;
    QTimer retry_;
    std::optional<std::pair<QString, QString>> waiting_; // title and text
    QString title_ = QStringLiteral("🕌");
    TitleColor color_ = TitleColor::Label;
};

} // namespace tarvanel
