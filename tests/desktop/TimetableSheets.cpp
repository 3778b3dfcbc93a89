#include "TimetableSheets.h"

#include <QDate>
#include <QFontMetrics>
#include <QLinearGradient>
#include <QLocale>
#include <QPainter>
#include <QPainterPath>
#include <QTransform>
#include <algorithm>
#include <cmath>
#include <random>

namespace tarvanel::test {

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
        Day d;
        d.date = first.addDays(i);
        const int n = first.day() + i;
        d.begins[0] = fajr + fs * n;
        d.sunrise = d.begins[0] + 95 - n / 3;
        d.begins[1] = 720 + 2 + n / 4;
        d.begins[2] = asr + as * n / 2;
        d.begins[3] = maghrib + ms * n;
        d.begins[4] = std::min(d.begins[3] + 85 + n / 2, 1420);
        const int week = n - (n - 1) % 7;
        d.jamaat[0] = quarter(fajr + fs * week + 20);
        d.jamaat[1] = dhuhrJamaat;
        d.jamaat[2] = quarter(asr + as * week / 2 + 10);
        d.jamaat[3] = d.begins[3] + 5;
        d.jamaat[4] = std::min(quarter(d.begins[4] + 10), 1430);
        days << d;
    }
    return days;
}

QString clockText(int minutes, Clock clock) {
    const int h = minutes / 60, m = minutes % 60;
    switch (clock) {
    case Clock::TwentyFour:
        return QString::asprintf("%02d:%02d", h, m);
    case Clock::AmPm:
        return QString::asprintf("%d:%02d %s", h % 12 ? h % 12 : 12, m, h < 12 ? "am" : "pm");
    case Clock::Dotted:
        return QString::asprintf("%d.%02d", h % 12 ? h % 12 : 12, m);
    case Clock::Unmarked:
        break;
    }
    return QString::asprintf("%d:%02d", h % 12 ? h % 12 : 12, m);
}

QStringList dateCells(const QDate& date, Dates dates) {
    const QString weekday = QLocale::c().dayName(date.dayOfWeek(), QLocale::ShortFormat);
    switch (dates) {
    case Dates::DayMonth:
        return {QString::number(date.day()) + ' ' +
                QLocale::c().monthName(date.month(), QLocale::ShortFormat)};
    case Dates::Slash:
        return {date.toString(QStringLiteral("dd/MM/yyyy"))};
    case Dates::WeekdayFirst:
        return {weekday, QString::number(date.day())};
    case Dates::NumberWeekday:
        return {QString::number(date.day()), weekday};
    case Dates::Number:
        break;
    }
    return {QString::number(date.day())};
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
        if (l.begins) {
            columns << Column{names[p], arabic[p], "Begins"} << Column{"", "", "Jamaat"};
        } else {
            columns << Column{names[p], arabic[p], ""};
        }
        if (p == 0 && l.sunrise) columns << Column{"Sunrise", "شروق", ""};
    }
    return columns;
}

QStringList timeCells(const Day& d, const Layout& l) {
    QStringList cells;
    for (int p = 0; p < 5; ++p) {
        if (l.begins) cells << clockText(d.begins[p], l.clock);
        cells << clockText(d.jamaat[p], l.clock);
        if (p == 0 && l.sunrise) cells << clockText(d.sunrise, l.clock);
    }
    return cells;
}

// Draws the table of one month from `top`; returns the y below it.
struct Painter {
    QPainter& p;
    const Layout& layout;
    const Look& look;
    QFont body, header, arabic;
    int row, margin, width;
    QList<int> widths; // every column's, date columns first
    QColor zebra{232, 236, 240};

    int table(int top, const QList<Day>& days, QStringList& lines) const {
        const QList<Column> columns = timeColumns(layout);
        const int dateColumns = int(widths.size() - columns.size());
        auto x = [&](int c) {
            int at = margin;
            for (int i = 0; i < c; ++i)
                at += widths[i];
            return at;
        };
        // Header: names (with Arabic beside them), then Begins/Jamaat under each pair.
        const bool dark = layout.ruling == Ruling::Zebra;
        const int headerRows = layout.begins ? 2 : 1;
        if (dark)
            p.fillRect(margin, top, x(widths.size()) - margin, row * headerRows,
                       QColor(20, 70, 50));
        p.setPen(dark ? Qt::white : Qt::black);
        p.setFont(header);
        QStringList names{"Date"};
        p.drawText(QRect(x(0), top, x(dateColumns) - x(0), row * headerRows), Qt::AlignCenter,
                   "Date");
        for (int c = 0; c < columns.size(); ++c) {
            const Column& col = columns[c];
            if (col.english.isEmpty()) continue;
            const int span = layout.begins && col.english != "Sunrise" ? 2 : 1;
            const QRect cell(x(dateColumns + c), top,
                             x(dateColumns + c + span) - x(dateColumns + c),
                             span == 1 ? row * headerRows : row);
            names << col.english;
            if (!layout.arabic) {
                p.drawText(cell, Qt::AlignCenter, col.english);
                continue;
            }
            const int english = QFontMetrics(header).horizontalAdvance(col.english + ' ');
            const int total = english + QFontMetrics(arabic).horizontalAdvance(col.arabic);
            const int left = cell.center().x() - total / 2;
            p.drawText(QRect(left, cell.y(), english, cell.height()), Qt::AlignVCenter,
                       col.english);
            p.setFont(arabic);
            p.drawText(QRect(left + english, cell.y(), total - english, cell.height()),
                       Qt::AlignVCenter, col.arabic);
            p.setFont(header);
        }
        lines << names.join("  ");
        if (layout.begins) {
            QStringList under;
            for (int c = 0; c < columns.size(); ++c) {
                if (columns[c].under.isEmpty()) continue;
                p.drawText(QRect(x(dateColumns + c), top + row, widths[dateColumns + c], row),
                           Qt::AlignCenter, columns[c].under);
                under << columns[c].under;
            }
            lines << under.join("  ");
        }
        top += row * headerRows;
        p.setPen(Qt::black);
        p.setFont(body);
        const int right = x(widths.size());
        for (int r = 0; r < days.size(); ++r) {
            const QStringList cells =
                dateCells(days[r].date, layout.dates) + timeCells(days[r], layout);
            const int y = top + r * row;
            if (layout.ruling == Ruling::Zebra && r % 2)
                p.fillRect(margin, y, right - margin, row, zebra);
            if (layout.ruling == Ruling::Rows || layout.ruling == Ruling::Grid)
                p.drawLine(margin, y + row, right, y + row);
            for (int c = 0; c < cells.size(); ++c)
                p.drawText(QRect(x(c), y, widths[c], row), Qt::AlignCenter, cells[c]);
            lines << cells.join("  ");
        }
        const int bottom = top + int(days.size()) * row;
        if (layout.ruling == Ruling::Grid) {
            p.drawRect(margin, top - row * headerRows, right - margin,
                       bottom - top + row * headerRows);
            p.drawLine(margin, top, right, top);
            for (int c = 1; c < widths.size(); ++c)
                p.drawLine(x(c),
                           top - (c <= dateColumns || !layout.begins || (c - dateColumns) % 2 == 0
                                      ? row * headerRows
                                      : row),
                           x(c), bottom);
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
    dome.lineTo(inner.left(), inner.center().y());
    dome.arcTo(inner, 180, -180);
    dome.lineTo(inner.bottomRight());
    dome.closeSubpath();
    p.setBrush(Qt::white);
    p.drawPath(dome);
    p.restore();
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

Sheet drawSheet(const Layout& layout, const Look& look, unsigned seed) {
    std::mt19937 random(seed);
    const int month = 1 + int(random() % 12);
    QList<QList<Day>> months;
    if (layout.twoMonths) {
        const QDate end = QDate(2026, month, 1).addMonths(1).addDays(-8);
        months << monthOfTimes(end, 8, random) << monthOfTimes(end.addDays(8), 8, random);
    } else {
        months << monthOfTimes(QDate(2026, month, 1), 12 + int(random() % 6), random);
    }

    QFont body(look.font), header(look.font), arabic("Noto Naskh Arabic"), title(look.font);
    body.setPixelSize(look.pixels);
    header.setPixelSize(look.pixels);
    header.setBold(look.boldHeaders);
    arabic.setPixelSize(look.pixels);
    title.setPixelSize(look.pixels * 3 / 2);
    title.setBold(true);

    // Column widths from the widest text each holds.
    const Layout& l = layout;
    const QFontMetrics metrics(body), heads(header);
    const int pad = look.pixels;
    QList<int> widths;
    const QStringList firstDate = dateCells(months[0][0].date, l.dates);
    for (qsizetype c = 0; c < firstDate.size(); ++c) {
        int w = heads.horizontalAdvance("Date");
        for (const QList<Day>& days : months)
            for (const Day& d : days)
                w = std::max(w, metrics.horizontalAdvance(dateCells(d.date, l.dates)[c]));
        widths << w + pad;
    }
    const QList<Column> columns = timeColumns(l);
    for (qsizetype c = 0; c < columns.size(); ++c) {
        int w = heads.horizontalAdvance(columns[c].under);
        if (!l.begins || columns[c].english == "Sunrise")
            w = std::max(w,
                         heads.horizontalAdvance(columns[c].english + (l.arabic ? " شروق" : "")));
        for (const QList<Day>& days : months)
            for (const Day& d : days)
                w = std::max(w, metrics.horizontalAdvance(timeCells(d, l)[c]));
        widths << w + pad;
    }
    const int margin = look.pixels * 2, row = look.pixels * 9 / 5;
    int tableWidth = 0;
    for (int w : widths)
        tableWidth += w;
    const int rows = int(months[0].size() * months.size()) + 2 * int(months.size());
    const int height = margin * 2 + row * (rows + (l.title ? 4 : 1) + (l.footer ? 3 : 0) +
                                           (l.twoMonths ? 2 : 0) + 2);
    Sheet sheet;
    sheet.image = QImage(tableWidth + 2 * margin, height, QImage::Format_RGB32);
    sheet.image.fill(Qt::white);
    QPainter p(&sheet.image);
    p.setRenderHint(QPainter::TextAntialiasing);
    Painter table{p, l, look, body, header, arabic, row, margin, tableWidth, widths};

    static const char* places[] = {"Al-Noor", "Al-Huda", "Bilal", "Al-Falah", "Quba", "Al-Rahma"};
    const QString name = QString("Masjid ") + places[random() % 6];
    auto monthTitle = [](QDate d) {
        return QLocale::c().monthName(d.month()) + ' ' + QString::number(d.year());
    };
    int y = margin;
    p.setFont(title);
    if (l.title) {
        drawLogo(p, QRect(margin, y, row * 3, row * 3));
        p.drawText(margin + row * 4, y + row, name);
        p.setFont(body);
        p.drawText(margin + row * 4, y + row * 2,
                   QString("%1 High Street, Leicester").arg(seed % 90 + 3));
        p.setFont(title);
        p.drawText(margin + row * 4, y + row * 3,
                   "Prayer Timetable " + monthTitle(months[0][0].date));
        sheet.lines << name << "Prayer Timetable " + monthTitle(months[0][0].date);
        y += row * 4;
    } else {
        p.drawText(margin, y + row, monthTitle(months[0][0].date));
        sheet.lines << monthTitle(months[0][0].date);
        y += row * 3 / 2;
    }
    for (const QList<Day>& days : months) {
        if (l.twoMonths && &days != &months.first()) {
            const QString next = monthTitle(days[0].date);
            p.setFont(title);
            p.drawText(margin, y + row * 3 / 2, next);
            sheet.lines << next;
            y += row * 2;
        }
        y = table.table(y, days, sheet.lines) + row / 2;
        sheet.days += int(days.size());
    }
    if (l.footer) {
        p.setFont(body);
        p.drawText(margin, y + row, "Jumu'ah: Khutbah 1:00 pm, Jamaat 1:30 pm");
        p.drawText(margin, y + row * 2, "Please switch off your mobile phone before entering.");
        sheet.lines << "Jumu'ah: Khutbah 1:00 pm, Jamaat 1:30 pm";
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

} // namespace tarvanel::test
