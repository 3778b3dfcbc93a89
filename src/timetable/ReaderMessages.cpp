#include "timetable/ReaderMessages.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace tarvanel::ReaderMessages {

namespace {

QByteArray line(const QJsonObject& object) {
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

} // namespace

QByteArray progress(int page, int pageCount) {
    return line({{QStringLiteral("page"), page}, {QStringLiteral("pages"), pageCount}});
}

QByteArray reading(const SheetReading& reading) {
    QJsonArray marks;
    for (const TextMark& m : reading.doubtful)
        marks.append(QJsonArray{m.line, m.start, m.length});
    return line({{QStringLiteral("lines"), QJsonArray::fromStringList(reading.lines)},
                 {QStringLiteral("doubtful"), marks},
                 {QStringLiteral("pagesRead"), reading.pagesRead},
                 {QStringLiteral("pageCount"), reading.pageCount}});
}

Message parse(QByteArrayView text) {
    const QJsonObject object = QJsonDocument::fromJson(text.trimmed().toByteArray()).object();
    Message message;
    if (object.contains(QStringLiteral("page"))) {
        message.kind = Message::Progress;
        message.page = object.value(QStringLiteral("page")).toInt();
        message.pageCount = object.value(QStringLiteral("pages")).toInt();
    } else if (object.value(QStringLiteral("lines")).isArray()) {
        message.kind = Message::Reading;
        SheetReading& r = message.reading;
        for (const QJsonValue& l : object.value(QStringLiteral("lines")).toArray())
            r.lines << l.toString();
        for (const QJsonValue& m : object.value(QStringLiteral("doubtful")).toArray()) {
            const QJsonArray mark = m.toArray();
            if (mark.size() == 3)
                r.doubtful.append({mark[0].toInt(), mark[1].toInt(), mark[2].toInt()});
        }
        r.pagesRead = object.value(QStringLiteral("pagesRead")).toInt();
        r.pageCount = object.value(QStringLiteral("pageCount")).toInt();
    }
    return message;
}

} // namespace tarvanel::ReaderMessages
