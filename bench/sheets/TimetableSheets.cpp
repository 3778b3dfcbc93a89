#include "sheets/TimetableSheets.h"

#include <QDate>
#include <QFontMetrics>
#include <QLocale>
#include <QPainter>
#include <QPainterPath>
#include <QPdfWriter>
#include <algorithm>
#include <random>

namespace tarvanel::sheets {

namespace {

// Begins and jamaat minutes after midnight of one day, Fajr to Isha, and sunrise.
struct Day {
    QDate date;
    int begins[5];
    int jamaat[5];
    int sunrise;
};

// Times drift through the month as they do at a northern latitude; jamaat times hold for a
// week and are set in steps of a quarter hour, as masjids do.
QList<Day> monthOfTimes(QDate first, int count, std::mt19937& random) {
    std::uniform_int_distribution<int> slope(-2, 2), start(0, 40);
    const int fajr = 250 + start(random), asr = 870 + start(random) * 2;
    const int maghrib = 1020 + start(random) * 3, dhuhrJamaat = random() % 2 ? 795 : 810;
    const int fs = slope(random), as = slope(random), ms = slope(random) * -1;
    auto quarter = [](int m) { return (m + 14) / 15 * 15; };
    QList<Day> days;
    for (int i = 0; i < count; ++i) {
        const int n = first.day() + i, week = n - (n - 1) % 7, maghribAt = maghrib + ms * n;
        Day d{first.addDays(i),
              {fajr + fs * n, 722 + n / 4, asr + as * n / 2, maghribAt, 0},
              {quarter(fajr + fs * week + 20), dhuhrJamaat, quarter(asr + as * week / 2 + 10),
               maghribAt + 5, 0},
              fajr + fs * n + 95 - n / 3};
        d.begins[4] = std::min(maghribAt + 85 + n / 2, 1420);
        d.jamaat[4] = std::min(quarter(d.begins[4] + 10), 1430);
        days << d;
    }
    return days;
}

QString clockText(int minutes, Clock clock) {
    const int h = minutes / 60, m = minutes % 60, twelve = h % 12 ? h % 12 : 12;
    if (clock == Clock::TwentyFour) return QString::asprintf("%02d:%02d", h, m);
    const QString time =
        QString::asprintf(clock == Clock::Dotted ? "%d.%02d" : "%d:%02d", twelve, m);
    if (clock == Clock::AmPm) return time + (h < 12 ? " am" : " pm");
    // A left-to-right mark first keeps the marker after the time on an English sheet.
    if (clock == Clock::ArabicMarks) return u'\u200E' + time + (h < 12 ? " \u0635" : " \u0645");
    return time;
}

QStringList dateCells(const QDate& date, Dates dates) {
    const QString day = QString::number(date.day()),
                  weekday = QLocale::c().dayName(date.dayOfWeek(), QLocale::ShortFormat);
    switch (dates) {
    case Dates::DayMonth:
        return {day + ' ' + QLocale::c().monthName(date.month(), QLocale::ShortFormat)};
    case Dates::Slash:
        return {date.toString(QStringLiteral("dd/MM/yyyy"))};
    case Dates::WeekdayFirst:
        return {weekday, day};
    case Dates::NumberWeekday:
        return {day, weekday};
    case Dates::Number:
        break;
    }
    return {day};
}

struct Column {
    QString english, arabic, under; // the prayer's name and, below it, "Begins" or "Jamaat"
};

QList<Column> timeColumns(const Layout& l) {
    const QStringList names{"Fajr", l.altNames ? "Zuhr" : "Dhuhr", "Asr", "Maghrib",
                            l.altNames ? "Esha" : "Isha"};
    const QStringList arabic{"فجر", "ظهر", "عصر", "مغرب", "عشاء"};
    QList<Column> columns;
    for (int p = 0; p < 5; ++p) {
        if (l.begins)
            columns << Column{names[p], arabic[p], "Begins"} << Column{"", "", "Jamaat"};
        else
            columns << Column{names[p], arabic[p], ""};
        if (p == 0 && l.sunrise) columns << Column{"Sunrise", "شروق", ""};
    }
    return columns;
}

// A row's cells: its date, then its times in column order.
QStringList rowCells(const Day& d, const Layout& l) {
    QStringList cells = dateCells(d.date, l.dates);
    for (int p = 0; p < 5; ++p) {
        if (l.begins) cells << clockText(d.begins[p], l.clock);
        cells << clockText(d.jamaat[p], l.clock);
        if (p == 0 && l.sunrise) cells << clockText(d.sunrise, l.clock);
    }
    return cells;
}

struct Painter {
    QPainter& p;
    const Layout& layout;
    QFont body, header, arabic;
    int row, margin;
    QList<int> widths; // every column's, date columns first

    int x(qsizetype column) const {
        int at = margin;
        for (qsizetype i = 0; i < column; ++i)
            at += widths[i];
        return at;
    }

    // A heading's English name with the Arabic one beside it, centred in `cell`.
    void bilingual(const QRect& cell, const Column& col) const {
        const int english = QFontMetrics(header).horizontalAdvance(col.english + ' ');
        const int total = english + QFontMetrics(arabic).horizontalAdvance(col.arabic);
        const int left = cell.center().x() - total / 2;
        p.drawText(QRect(left, cell.y(), english, cell.height()), Qt::AlignVCenter, col.english);
        p.setFont(arabic);
        p.drawText(QRect(left + english, cell.y(), total - english, cell.height()),
                   Qt::AlignVCenter, col.arabic);
        p.setFont(header);
    }

    // Draws the table of one month from `top`; returns the y below it.
    int table(int top, const QList<Day>& days, QStringList& lines) const {
        const QList<Column> columns = timeColumns(layout);
        const qsizetype dates = widths.size() - columns.size();
        const int right = x(widths.size()), headerRows = layout.begins ? 2 : 1;
        const int headerHeight = row * headerRows;
        // Header: names (with Arabic beside them), then Begins/Jamaat under each pair.
        const bool zebra = layout.ruling == Ruling::Zebra;
        if (zebra) p.fillRect(margin, top, right - margin, headerHeight, QColor(20, 70, 50));
        p.setPen(zebra ? Qt::white : Qt::black);
        p.setFont(header);
        p.drawText(QRect(x(0), top, x(dates) - x(0), headerHeight), Qt::AlignCenter, "Date");
        QStringList names{"Date"}, under;
        for (qsizetype c = 0; c < columns.size(); ++c) {
            const Column& col = columns[c];
            if (col.english.isEmpty()) continue;
            const int span = layout.begins && col.english != "Sunrise" ? 2 : 1;
            const QRect cell(x(dates + c), top, x(dates + c + span) - x(dates + c),
                             span == 1 ? headerHeight : row);
            names << col.english;
            if (layout.arabic)
                bilingual(cell, col);
            else
                p.drawText(cell, Qt::AlignCenter, col.english);
        }
        lines << names.join("  ");
        for (qsizetype c = 0; layout.begins && c < columns.size(); ++c) {
            if (columns[c].under.isEmpty()) continue;
            p.drawText(QRect(x(dates + c), top + row, widths[dates + c], row), Qt::AlignCenter,
                       columns[c].under);
            under << columns[c].under;
        }
        if (layout.begins) lines << under.join("  ");
        top += headerHeight;
        p.setPen(Qt::black);
        p.setFont(body);
        for (int r = 0; r < days.size(); ++r) {
            const QStringList cells = rowCells(days[r], layout);
            const int y = top + r * row;
            if (zebra && r % 2) p.fillRect(margin, y, right - margin, row, QColor(232, 236, 240));
            if (layout.ruling == Ruling::Rows || layout.ruling == Ruling::Grid)
                p.drawLine(margin, y + row, right, y + row);
            for (int c = 0; c < cells.size(); ++c)
                p.drawText(QRect(x(c), y, widths[c], row), Qt::AlignCenter, cells[c]);
            lines << cells.join("  ");
        }
        const int bottom = top + int(days.size()) * row;
        if (layout.ruling == Ruling::Grid) {
            p.drawRect(margin, top - headerHeight, right - margin, bottom - top + headerHeight);
            p.drawLine(margin, top, right, top);
            // Rules between a Begins and its Jamaat start below the name they share.
            for (qsizetype c = 1; c < widths.size(); ++c) {
                const bool shared = c > dates && layout.begins && (c - dates) % 2;
                p.drawLine(x(c), top - (shared ? row : headerHeight), x(c), bottom);
            }
        }
        return bottom;
    }
};

void drawLogo(QPainter& p, QRect box) {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(20, 90, 60));
    p.drawEllipse(box);
    QPainterPath dome;
    const QRectF inner = QRectF(box).adjusted(box.width() * 0.25, box.height() * 0.3,
                                              -box.width() * 0.25, -box.height() * 0.2);
    dome.moveTo(inner.bottomLeft());
    dome.arcTo(inner, 180, -180);
    dome.lineTo(inner.bottomRight());
    dome.closeSubpath();
    p.setBrush(Qt::white);
    p.drawPath(dome);
    p.restore();
}

QString monthTitle(QDate d) {
    return QLocale::c().monthName(d.month()) + ' ' + QString::number(d.year());
}

} // namespace

QList<int> jamaatPositions(const Layout& layout) {
    QList<int> positions;
    int at = 0;
    for (int p = 0; p < 5; ++p) {
        at += layout.begins ? 1 : 0;
        positions << at++;
        if (p == 0 && layout.sunrise) ++at;
    }
    return positions;
}

Sheet drawSheet(const Layout& l, const Look& look, unsigned seed) {
    std::mt19937 random(seed);
    const int month = 1 + int(random() % 12);
    QList<QList<Day>> months;
    if (l.twoMonths) {
        const QDate end = QDate(2026, month, 1).addMonths(1).addDays(-8);
        months << monthOfTimes(end, 8, random) << monthOfTimes(end.addDays(8), 8, random);
    } else {
        months << monthOfTimes(QDate(2026, month, 1), 12 + int(random() % 6), random);
    }

    QFont body(look.font), header(look.font), arabic("Noto Naskh Arabic"), title(look.font);
    for (QFont* f : {&body, &header, &arabic})
        f->setPixelSize(look.pixels);
    header.setBold(look.boldHeaders);
    title.setPixelSize(look.pixels * 3 / 2);
    title.setBold(true);

    // Column widths from the widest text each holds, its heading included.
    const QFontMetrics metrics(body), heads(header);
    const QList<Column> columns = timeColumns(l);
    const qsizetype dates = dateCells(months[0][0].date, l.dates).size();
    QList<int> widths;
    int tableWidth = 0;
    for (qsizetype c = 0; c < dates + columns.size(); ++c) {
        const Column* col = c < dates ? nullptr : &columns[c - dates];
        int w = heads.horizontalAdvance(col ? col->under : "Date");
        if (col && (!l.begins || col->english == "Sunrise"))
            w = std::max(w, heads.horizontalAdvance(col->english + (l.arabic ? " شروق" : "")));
        for (const QList<Day>& days : months)
            for (const Day& d : days)
                w = std::max(w, metrics.horizontalAdvance(rowCells(d, l)[c]));
        widths << w + look.pixels;
        tableWidth += widths.last();
    }
    const int margin = look.pixels * 2, row = look.pixels * 9 / 5;
    const int rows = int(months[0].size() * months.size()) + 2 * int(months.size());
    const int height = margin * 2 + row * (rows + (l.title ? 4 : 1) + (l.footer ? 3 : 0) +
                                           (l.twoMonths ? 2 : 0) + 2);
    Sheet sheet;
    sheet.image = QImage(tableWidth + 2 * margin, height, QImage::Format_RGB32);
    sheet.image.fill(Qt::white);
    QPainter p(&sheet.image);
    p.setRenderHint(QPainter::TextAntialiasing);
    const Painter table{p, l, body, header, arabic, row, margin, widths};

    static const char* places[] = {"Al-Noor", "Al-Huda", "Bilal", "Al-Falah", "Quba", "Al-Rahma"};
    const QString name = QString("Masjid ") + places[random() % 6];
    const QString heading = monthTitle(months[0][0].date);
    int y = margin;
    p.setFont(title);
    if (l.title) {
        drawLogo(p, QRect(margin, y, row * 3, row * 3));
        p.drawText(margin + row * 4, y + row, name);
        p.setFont(body);
        p.drawText(margin + row * 4, y + row * 2,
                   QString("%1 High Street, Leicester").arg(seed % 90 + 3));
        p.setFont(title);
        p.drawText(margin + row * 4, y + row * 3, "Prayer Timetable " + heading);
        sheet.lines << name << "Prayer Timetable " + heading;
        y += row * 4;
    } else {
        p.drawText(margin, y + row, heading);
        sheet.lines << heading;
        y += row * 3 / 2;
    }
    for (const QList<Day>& days : months) {
        if (&days != &months.first()) { // the second month of a two-month sheet
            p.setFont(title);
            p.drawText(margin, y + row * 3 / 2, monthTitle(days[0].date));
            sheet.lines << monthTitle(days[0].date);
            y += row * 2;
        }
        y = table.table(y, days, sheet.lines) + row / 2;
        sheet.days += int(days.size());
    }
    if (l.footer) {
        const QString jumuah = "Jumu'ah: Khutbah 1:00 pm, Jamaat 1:30 pm";
        p.setFont(body);
        p.drawText(margin, y + row, jumuah);
        p.drawText(margin, y + row * 2, "Please switch off your mobile phone before entering.");
        sheet.lines << jumuah;
    }
    p.end();
    const Photo& photo = look.photo;
    if (photo.tilt || photo.perspective || photo.blur || photo.shade || photo.jpeg > 0)
        sheet.image = photographed(sheet.image, photo, random);
    return sheet;
}

QString saveSheet(const Sheet& sheet, const Look& look, const QString& dir, const QString& name) {
    const bool jpeg = look.photo.jpeg > 0;
    const QString path = dir + '/' + name + (jpeg ? ".jpg" : ".png");
    sheet.image.save(path, nullptr, jpeg ? look.photo.jpeg : -1);
    return path;
}

QString saveScan(const Sheet& sheet, const QString& path) {
    constexpr int dpi = 150;
    QPdfWriter writer(path);
    writer.setResolution(dpi);
    writer.setPageSize(QPageSize(QSizeF(sheet.image.size()) / dpi, QPageSize::Inch));
    writer.setPageMargins({});
    QPainter p(&writer);
    p.drawImage(0, 0, sheet.image);
    return path;
}

} // namespace tarvanel::sheets
