#include "desktop/TrayIcon.h"

#include "desktop/Look.h"

#include <QAction>
#include <QApplication>
#include <QCoreApplication>
#include <QFontDatabase>
#include <QMenu>
#include <QPainter>
#include <QPainterPath>
#include <QRegularExpression>
#include <QSystemTrayIcon>
#include <utility>

namespace tarvanel {

namespace {

QColor colourFor(TitleColor color) {
    switch (color) {
    case TitleColor::Orange:
        return look::orange;
    case TitleColor::Red:
        return look::red;
    case TitleColor::Secondary:
        return QColor(0x9A, 0x9A, 0x9E);
    case TitleColor::Label:
        break;
    }
    return QColor(0xF2, 0xF2, 0xF2);
}

// A dome on a base between two minarets, in a unit square scaled to `r`.
QPainterPath mosquePath(const QRectF& r) {
    auto at = [&](double x, double y) {
        return QPointF(r.x() + x * r.width(), r.y() + y * r.height());
    };
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    // base
    path.addRect(QRectF(at(0.18, 0.62), at(0.82, 0.98)));
    // dome with its finial
    QPainterPath dome;
    dome.moveTo(at(0.22, 0.64));
    dome.cubicTo(at(0.22, 0.36), at(0.42, 0.30), at(0.5, 0.18));
    dome.cubicTo(at(0.58, 0.30), at(0.78, 0.36), at(0.78, 0.64));
    dome.closeSubpath();
    path.addPath(dome);
    path.addRect(QRectF(at(0.485, 0.06), at(0.515, 0.2)));
    // minarets
    path.addRect(QRectF(at(0.02, 0.30), at(0.12, 0.98)));
    path.addRect(QRectF(at(0.88, 0.30), at(0.98, 0.98)));
    QPainterPath caps;
    caps.moveTo(at(0.0, 0.31));
    caps.lineTo(at(0.07, 0.14));
    caps.lineTo(at(0.14, 0.31));
    caps.closeSubpath();
    caps.moveTo(at(0.86, 0.31));
    caps.lineTo(at(0.93, 0.14));
    caps.lineTo(at(1.0, 0.31));
    caps.closeSubpath();
    path.addPath(caps);
    // the door is cut out
    QPainterPath door;
    door.addRoundedRect(QRectF(at(0.42, 0.76), at(0.58, 0.98)), r.width() * 0.08, r.width() * 0.08);
    return path.subtracted(door);
}

QPainterPath crescentPath(const QRectF& r) {
    QPainterPath outer, inner;
    outer.addEllipse(r);
    inner.addEllipse(r.translated(r.width() * 0.32, -r.height() * 0.12));
    return outer.subtracted(inner);
}

} // namespace

std::optional<QString> titleMinutes(const QString& title) {
    // A countdown under an hour is the title's only number, in whatever language and digits
    // ("Dhuhr in 23m", "الظهر بعد ٢٣ د"); a clock time or "1h 12m" has two.
    static const QRegularExpression digits(QStringLiteral("\\d+"),
                                           QRegularExpression::UseUnicodePropertiesOption);
    QRegularExpressionMatchIterator runs = digits.globalMatch(title);
    if (!runs.hasNext()) return std::nullopt;
    const QString only = runs.next().captured();
    if (runs.hasNext()) return std::nullopt;
    return only;
}

QImage trayImage(const QString& title, TitleColor color, int size) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    const QColor colour = colourFor(color);
    const bool crescent = title.startsWith(QStringLiteral("🌙"));
    const auto minutes = titleMinutes(title);
    const double s = size;
    const QRectF emblemArea = minutes ? QRectF(s * 0.2, 0, s * 0.6, s * 0.44)
                                      : QRectF(s * 0.04, s * 0.04, s * 0.92, s * 0.92);
    QList<QPainterPath> shapes{crescent ? crescentPath(emblemArea) : mosquePath(emblemArea)};
    if (minutes) {
        QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
        font.setBold(true);
        font.setPixelSize(int(s * (minutes->size() > 2 ? 0.42 : 0.56)));
        QPainterPath text;
        text.addText(0, 0, font, *minutes);
        const QRectF bounds = text.boundingRect();
        text.translate(s / 2 - bounds.center().x(), s * 0.74 - bounds.center().y());
        shapes << text;
    }
    // The panel's colour is unknown (a tray host may paint anything behind the icon), so the
    // light emblem carries a dark halo: the fill reads on dark panels, the halo on light ones.
    const double halo = std::max(2.0, s / 9.0);
    for (const QPainterPath& shape : shapes)
        p.strokePath(shape,
                     QPen(QColor(0, 0, 0, 215), halo, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    for (const QPainterPath& shape : shapes)
        p.fillPath(shape, colour);
    return image;
}

void fillMenu(QMenu* menu, const MenuModel& model) {
    menu->clear();
    for (const MenuItem& item : model) {
        if (item.kind == MenuItem::Kind::Separator) {
            menu->addSeparator();
            continue;
        }
        QAction* action = nullptr;
        if (!item.submenu.isEmpty()) {
            QMenu* sub = menu->addMenu(item.text);
            fillMenu(sub, item.submenu);
            action = sub->menuAction();
        } else {
            action = menu->addAction(item.text);
        }
        action->setData(item.tag);
        // A submenu always opens; otherwise only enabled commands can be chosen.
        action->setEnabled(!item.submenu.isEmpty() ||
                           (item.kind == MenuItem::Kind::Command && item.enabled));
        if (item.monospaced) {
            QFont mono = QFontDatabase::systemFont(QFontDatabase::FixedFont);
            // 12 design points, one logical pixel each, as everywhere else in the look.
            mono.setPointSizeF(12 * 72.0 / 96.0);
            mono.setWeight(QFont::Normal);
            // A monospaced face's Arabic letters stand apart; the script's own face joins them.
            if (QApplication::isRightToLeft())
                mono.setFamilies(QApplication::font().families() + QStringList{mono.family()});
            action->setFont(mono);
        }
        if (!item.shortcut.isEmpty()) action->setShortcut(QKeySequence(item.shortcut));
        if (item.kind == MenuItem::Kind::Command && item.action && item.submenu.isEmpty()) {
            // The command may open a modal window: let the menu close first.
            const auto run = item.action;
            QObject::connect(action, &QAction::triggered, menu,
                             [run] { QTimer::singleShot(0, QCoreApplication::instance(), run); });
        }
    }
}

TrayIcon::TrayIcon(QObject* parent) : QObject(parent) {
    // A login service can start before the panel: look again until a tray host appears.
    retry_.setInterval(2000);
    connect(&retry_, &QTimer::timeout, this, &TrayIcon::ensureCreated);
    retry_.start();
    menu_ = std::make_unique<QMenu>();
    connect(menu_.get(), &QMenu::aboutToShow, this, &TrayIcon::rebuildMenu);
}

TrayIcon::~TrayIcon() {
    delete icon_;
}

bool TrayIcon::ensureCreated() {
    if (icon_) return true;
    // Without a tray host titles are dropped silently until one appears.
    if (!QSystemTrayIcon::isSystemTrayAvailable()) return false;
    retry_.stop();
    icon_ = new QSystemTrayIcon(this);
    icon_->setContextMenu(menu_.get());
    // A left click opens the same menu, as a menu-bar item does.
    connect(icon_, &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason why) {
                if (why == QSystemTrayIcon::Trigger && menu_) menu_->popup(QCursor::pos());
            });
    refreshIcon();
    icon_->show();
    if (waiting_) {
        const auto [title, text] = *std::exchange(waiting_, std::nullopt);
        announce(title, text);
    }
    return true;
}

bool TrayIcon::announce(const QString& title, const QString& text) {
    if (!icon_ && !ensureCreated()) {
        waiting_ = std::pair{title, text};
        return false;
    }
    icon_->showMessage(title, text, QSystemTrayIcon::Information, 15000);
    return true;
}

QString TrayIcon::waitingAnnouncement() const {
    return waiting_ ? waiting_->first + QStringLiteral(": ") + waiting_->second : QString();
}

void TrayIcon::rebuildMenu() {
    if (menu_) fillMenu(menu_.get(), provider_ ? provider_() : MenuModel{});
}

void TrayIcon::setTitle(const QString& title, TitleColor color) {
    if (title == title_ && color == color_) return;
    title_ = title;
    color_ = color;
    refreshIcon();
}

void TrayIcon::refreshIcon() {
    if (!icon_) return;
    QIcon icon;
    for (int size : {16, 22, 24, 32, 48, 64})
        icon.addPixmap(QPixmap::fromImage(trayImage(title_, color_, size)));
    icon_->setIcon(icon);
    icon_->setToolTip(title_);
}

} // namespace tarvanel
