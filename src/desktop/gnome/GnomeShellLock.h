#pragma once
// The lock on GNOME, whose compositor offers clients neither a session lock nor a layer shell.
// Tarvanel's GNOME Shell extension (data/gnome-shell) runs inside the compositor: it covers
// every monitor above everything and holds the keyboard and pointer with a modal grab. This
// side renders the one lock view into a picture per monitor, hands the pictures over the
// session bus, and turns the keys the extension sends back into lock keys. Every call is
// asynchronous, so an extension that is installed but not loaded never stalls the agent.
#include "desktop/LockBackend.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QDateTime>
#include <QElapsedTimer>
#include <QPointer>
#include <QSize>
#include <QStringList>
#include <QTimer>
#include <memory>
#include <vector>

class QDBusPendingCallWatcher;

namespace tarvanel {

class LockView;

class GnomeShellLock : public LockBackend {
    Q_OBJECT
public:
    static const QString serviceName;
    static const QString extensionUuid;

    explicit GnomeShellLock(QObject* parent = nullptr);
    ~GnomeShellLock() override;

    // The extension is loaded in the running Shell: its name has an owner on the session bus.
    static bool available();

    QString mechanism() const override;
    void show(const QList<LockWindowContent>& perScreen, LockScreenState* state) override;
    void raise(bool) override {} // the extension keeps the cover on top by itself
    void close() override;
    bool up() const override { return up_; }

private slots:
    void onKey(const QString& kind, const QString& text);
    void onMonitorsChanged();

private:
    struct Monitor {
        QSize pixels;
        double scale = 1;
    };

    QDBusPendingCallWatcher* call(const QString& method, const QVariantList& args);
    void askMonitors();
    void buildViews();
    void scheduleSend();
    void send();
    void onSent(QDBusPendingCallWatcher* watcher, const QStringList& files);
    QStringList writePictures();
    void removePictures(const QStringList& keep) const;
    void fail(const QString& why);

    QDBusConnection bus_;
    QDBusServiceWatcher watcher_;
    QList<LockWindowContent> content_;
    QPointer<LockScreenState> state_;
    QList<Monitor> monitors_;
    std::vector<std::unique_ptr<LockView>> views_;
    QDateTime ends_;
    QElapsedTimer shownAt_;
    QElapsedTimer monitorsChangedAt_; // valid from a change of monitors until they are painted
    QTimer coalesce_;
    quint64 generation_ = 0;
    quint64 shows_ = 0; // increases with every show() and close(): late replies are dropped
    bool up_ = false;
    bool acknowledged_ = false; // the extension has accepted a Lock of this show
    bool inFlight_ = false;
    bool dirty_ = false;
    bool coveredReported_ = false;
    bool failed_ = false;
};

} // namespace tarvanel
