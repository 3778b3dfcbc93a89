#pragma once
// The status menu as plain data: the core builds it each time the menu opens, the desktop
// renders it and calls the actions.
#include <QList>
#include <QString>
#include <functional>

namespace tarvanel {

struct MenuItem {
    enum class Kind { Command, Info, Separator };

    Kind kind = Kind::Info;
    QString text;
    bool enabled = false;
    int tag = 0;
    bool monospaced = false; // the seven-day grid rows: monospaced system font, 12 pt
    QString shortcut;        // "Ctrl+," for Settings…
    std::function<void()> action;
    QList<MenuItem> submenu; // non-empty: the item opens a submenu

    static MenuItem info(const QString& text) {
        return {Kind::Info, text, false, 0, false, {}, {}, {}};
    }
    static MenuItem separator() { return {Kind::Separator, {}, false, 0, false, {}, {}, {}}; }
    static MenuItem command(const QString& text, std::function<void()> action, int tag = 0) {
        return {Kind::Command, text, true, tag, false, {}, std::move(action), {}};
    }
};

using MenuModel = QList<MenuItem>;

} // namespace tarvanel
