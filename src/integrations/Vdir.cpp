#include "integrations/Vdir.h"
#include "base/StateFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTimeZone>
#include <QUuid>
#include <atomic>
#include <libical/ical.h>
#include <memory>
#include <thread>
#include <vector>

namespace tarvanel::vdir {
namespace {

struct ComponentFree {
    void operator()(icalcomponent* c) const { icalcomponent_free(c); }
};
using Component = std::unique_ptr<icalcomponent, ComponentFree>;

icaltimetype utcTime(const QDateTime& instant) {
    return icaltime_from_timet_with_zone(time_t(instant.toSecsSinceEpoch()), 0,
                                         icaltimezone_get_utc_timezone());
}

// All-day and floating times are read on the local wall clock, as calendar clients show them.
std::optional<QDateTime> instantOf(const icaltimetype& t) {
    if (icaltime_is_null_time(t) || !icaltime_is_valid_time(t)) return std::nullopt;
    if (icaltime_is_date(t) || (!icaltime_is_utc(t) && !t.zone)) {
        const QDateTime local(QDate(t.year, t.month, t.day),
                              icaltime_is_date(t) ? QTime(0, 0)
                                                  : QTime(t.hour, t.minute, t.second));
        if (!local.isValid()) return std::nullopt;
        return local.toUTC();
    }
    const icaltimezone* zone = t.zone ? t.zone : icaltimezone_get_utc_timezone();
    return QDateTime::fromSecsSinceEpoch(qint64(icaltime_as_timet_with_zone(t, zone)),
                                         QTimeZone::utc());
}

bool isOwn(icalcomponent* event) {
    if (icalproperty* url = icalcomponent_get_first_property(event, ICAL_URL_PROPERTY)) {
        const char* value = icalproperty_get_url(url);
        if (value && tagUrl() == QLatin1String(value)) return true;
    }
    const char* notes = icalcomponent_get_description(event);
    return notes && QString::fromUtf8(notes).contains(tagText());
}

bool overlaps(icalcomponent* event, const QDateTime& from, const QDateTime& to) {
    const icaltimetype startTime = icalcomponent_get_dtstart(event);
    const auto start = instantOf(startTime);
    if (!start) return false;
    auto end = instantOf(icalcomponent_get_dtend(event));
    if (!end) end = icaltime_is_date(startTime) ? start->addDays(1) : *start;
    // An event of no length counts where it starts.
    return *start < to && (*end > from || *start >= from);
}

// Content lines may be folded anywhere, even inside the tag; unfold before looking for it.
bool mayHoldTag(const QByteArray& bytes) {
    const QByteArray url = tagUrl().toUtf8(), text = tagText().toUtf8();
    if (bytes.contains(url) || bytes.contains(text)) return true;
    if (!bytes.contains("\n ") && !bytes.contains("\n\t")) return false;
    QByteArray unfolded = bytes;
    unfolded.replace("\r\n ", "").replace("\r\n\t", "").replace("\n ", "").replace("\n\t", "");
    return unfolded.contains(url) || unfolded.contains(text);
}

QByteArray serialise(icalcomponent* component) {
    char* text = icalcomponent_as_ical_string_r(component);
    QByteArray bytes(text);
    icalmemory_free_buffer(text);
    return bytes;
}

// An event already written as planned stays, so a repeated sync neither rewrites the file nor
// makes a CalDAV sync upload it again. Found entries leave `keep`: a duplicate goes.
bool takeMatch(icalcomponent* event, QList<NewEvent>* keep) {
    icalproperty* transp = icalcomponent_get_first_property(event, ICAL_TRANSP_PROPERTY);
    if (!keep || !transp || icalproperty_get_transp(transp) != ICAL_TRANSP_OPAQUE) return false;
    const auto start = instantOf(icalcomponent_get_dtstart(event));
    const auto end = instantOf(icalcomponent_get_dtend(event));
    const char* summary = icalcomponent_get_summary(event);
    if (!start || !end || !summary) return false;
    for (qsizetype i = 0; i < keep->size(); ++i) {
        const NewEvent& e = keep->at(i);
        if (e.start.toSecsSinceEpoch() == start->toSecsSinceEpoch() &&
            e.end.toSecsSinceEpoch() == end->toSecsSinceEpoch() && e.title == summary) {
            keep->removeAt(i);
            return true;
        }
    }
    return false;
}

void removeFromFile(const QString& path, const QDateTime& from, const QDateTime& to,
                    QList<NewEvent>* keep) {
    const auto bytes = readWholeFile(path);
    // Only the application's marks make an event removable, so a file without them is skipped
    // unparsed: thousands of other events cost a read each.
    if (!bytes || !mayHoldTag(*bytes)) return;
    Component root(icalparser_parse_string(bytes->constData()));
    if (!root) return;
    QList<icalcomponent*> events, doomed;
    if (icalcomponent_isa(root.get()) == ICAL_VEVENT_COMPONENT) {
        events << root.get();
    } else {
        for (icalcomponent* e =
                 icalcomponent_get_first_component(root.get(), ICAL_VEVENT_COMPONENT);
             e; e = icalcomponent_get_next_component(root.get(), ICAL_VEVENT_COMPONENT))
            events << e;
    }
    for (icalcomponent* e : events)
        if (isOwn(e) && overlaps(e, from, to) && !takeMatch(e, keep)) doomed << e;
    if (doomed.isEmpty()) return;
    const int others = icalcomponent_count_components(root.get(), ICAL_VTODO_COMPONENT) +
                       icalcomponent_count_components(root.get(), ICAL_VJOURNAL_COMPONENT);
    if (doomed.size() == events.size() && others == 0) {
        QFile::remove(path);
        return;
    }
    // A file that also holds other events or tasks keeps them.
    for (icalcomponent* e : doomed) {
        icalcomponent_remove_component(root.get(), e);
        icalcomponent_free(e);
    }
    writeFileAtomically(path, serialise(root.get()));
}

QString writeOne(const QString& folder, const NewEvent& e, const icaltimetype& stamp) {
    const QString uid = QUuid::createUuid().toString(QUuid::WithoutBraces);
    Component calendar(icalcomponent_new_vcalendar());
    icalcomponent_add_property(calendar.get(), icalproperty_new_version("2.0"));
    icalcomponent_add_property(calendar.get(), icalproperty_new_prodid("-//Tarvanel//EN"));
    icalcomponent* event = icalcomponent_new_vevent();
    icalcomponent_set_uid(event, uid.toUtf8().constData());
    icalcomponent_set_dtstamp(event, stamp);
    icalcomponent_set_summary(event, e.title.toUtf8().constData());
    icalcomponent_set_dtstart(event, utcTime(e.start));
    icalcomponent_set_dtend(event, utcTime(e.end));
    icalcomponent_add_property(event, icalproperty_new_transp(ICAL_TRANSP_OPAQUE));
    icalcomponent_add_property(event, icalproperty_new_url(tagUrl().toUtf8().constData()));
    icalcomponent_set_description(event, tagText().toUtf8().constData());
    icalcomponent_add_component(calendar.get(), event);

    const QString path = QDir(folder).filePath(uid + QStringLiteral(".ics"));
    if (!writeFileAtomically(path, serialise(calendar.get())))
        return QStringLiteral("could not write ") + path;
    return QString();
}

} // namespace

QString tagText() {
    return QStringLiteral("Added by Tarvanel");
}
QString tagUrl() {
    return QStringLiteral("tarvanel://lock");
}

QList<CalendarFolder> listCalendars(const QString& root) {
    QList<CalendarFolder> result;
    const auto dirs = QDir::Dirs | QDir::NoDotAndDotDot;
    for (const QFileInfo& account : QDir(root).entryInfoList(dirs)) {
        for (const QFileInfo& folder : QDir(account.filePath()).entryInfoList(dirs)) {
            CalendarFolder c;
            c.path = folder.absoluteFilePath();
            c.identifier = account.fileName() + QLatin1Char('/') + folder.fileName();
            c.sourceTitle = account.fileName();
            c.writable = folder.isWritable();
            const auto name = readWholeFile(c.path + QStringLiteral("/displayname"));
            c.title = name ? QString::fromUtf8(*name).trimmed() : QString();
            if (c.title.isEmpty()) c.title = folder.fileName();
            result << c;
        }
    }
    return result;
}

void removeOwnEvents(const QString& folder, const QDateTime& from, const QDateTime& to,
                     QList<NewEvent>* keep) {
    const QDir dir(folder);
    for (const QString& name : dir.entryList({QStringLiteral("*.ics")}, QDir::Files))
        removeFromFile(dir.filePath(name), from, to, keep);
}

QString writeEvents(const QString& folder, const QList<NewEvent>& events) {
    icaltimezone_get_utc_timezone(); // built before the writers share it
    const icaltimetype stamp = utcTime(QDateTime::currentDateTimeUtc());
    std::vector<QString> reasons(size_t(events.size()));
    std::atomic<qsizetype> next = 0;
    // Each atomic write waits for the disk to confirm it; side by side, the waits overlap.
    const auto writer = [&] {
        for (qsizetype i = next++; i < events.size(); i = next++)
            reasons[size_t(i)] = writeOne(folder, events[i], stamp);
    };
    std::vector<std::thread> threads;
    for (qsizetype t = 1; t < std::min<qsizetype>(events.size(), 8); ++t)
        threads.emplace_back(writer);
    writer();
    for (std::thread& t : threads)
        t.join();
    for (const QString& reason : reasons)
        if (!reason.isEmpty()) return reason;
    return QString();
}

} // namespace tarvanel::vdir
