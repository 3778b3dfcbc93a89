// Any bytes as a pasted sheet: parse, guess columns, make days, read every time back.
#include "FuzzHome.h"
#include "timetable/TimetableParser.h"

using namespace tarvanel;

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    fuzz::setUpHome();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 2) return 0;
    // The first two bytes choose month and year, like the import window's pickers.
    const int month = data[0] % 14;        // 0 and 13 are out of range on purpose
    const int year = 1990 + data[1] % 120; // wider than any sheet
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char*>(data + 2), qsizetype(size - 2));
    const QList<ParsedRow> rows = TimetableParser::parse(text.split(u'\n'));
    int most = 0;
    for (const ParsedRow& row : rows) {
        most = std::max(most, int(row.times.size()));
        for (const ParsedTime& t : row.times) {
            (void)t.label();
            if (const auto c = t.clock(QStringLiteral("Dhuhr")); c && c->size() != 5) abort();
        }
    }
    ColumnMap columns = TimetableParser::guessColumns(most);
    columns.insert(QStringLiteral("Jumu'ah"), most - 1);
    const DayTable table = TimetableParser::days(rows, month, year, columns);
    for (auto it = table.begin(); it != table.end(); ++it)
        if (it.value().isEmpty()) abort(); // a day without entries must not be added
    return 0;
}
