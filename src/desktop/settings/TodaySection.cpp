// 3. Today: the preview of today's times with the unsaved edits.
#include "desktop/settings/SectionKit.h"
#include "engine/LocalTime.h"
#include "engine/PrayerNames.h"
#include "menubar/ShownTime.h"

#include <QCoreApplication>
#include <QFormLayout>
#include <QGridLayout>

namespace tarvanel {

QString timePattern() {
    //: How a time of day is written, in Qt's date-time pattern letters: h hour, mm minutes,
    //: AP AM or PM. A 24-hour clock is HH:mm
    return QCoreApplication::translate("Settings", "h:mm AP");
}

// Shown times read as in the menu and the banners (a right-to-left language isolates them).
QString shortTime(const QDateTime& instant) {
    return formatLocal(instant, clockPattern());
}

QWidget* makeTodaySection(SectionContext& c) {
    auto* s = new Section(QCoreApplication::translate("Settings", "Today"));
    PrayerSettingsModel* m = &c.model;
    auto* table = new QWidget;
    auto* grid = new QGridLayout(table);
    grid->setContentsMargins(0, 0, 0, 0);
    s->addRow(table);
    // Every field the preview reads.
    watch(*m, table,
          {Field::latitude, Field::longitude, Field::methodID, Field::fajrAngle, Field::ishaAngle,
           Field::hanafi, Field::lockLead, Field::rows, Field::jumuahEnabled, Field::jumuahTime},
          [m, table, grid] {
              while (QLayoutItem* item = grid->takeAt(0)) {
                  delete item->widget();
                  delete item;
              }
              const QList<PreviewEntry> entries = m->preview();
              if (entries.isEmpty()) {
                  grid->addWidget(wrapped(QCoreApplication::translate(
                                              "Settings", "Find your city to see today's times."),
                                          table),
                                  0, 0);
                  return;
              }
              int row = 0;
              std::optional<QDateTime> sunrise;
              for (const PreviewEntry& e : entries) {
                  if (e.name == QLatin1String("Sunrise")) sunrise = e.start;
                  //: A column of today's times: %1 the time this prayer's lock starts
                  const QString lock = e.lock ? QCoreApplication::translate("Settings", "locks %1")
                                                    .arg(shortTime(*e.lock))
                                              : QString();
                  const QStringList cells{prayerLabel(e.name), shortTime(e.start), lock};
                  for (int col = 0; col < 3; ++col) {
                      auto* cell = new QLabel(cells[col], table);
                      cell->setAccessibleName(cells[col]);
                      grid->addWidget(cell, row, col);
                  }
                  ++row;
              }
              if (!sunrise) return;
              //: %1 the time of sunrise
              const QString fajrEnds =
                  QCoreApplication::translate("Settings", "Fajr ends at sunrise, %1.")
                      .arg(shortTime(*sunrise));
              grid->addWidget(wrapped(fajrEnds, table), row, 0, 1, 3);
          });
    return s;
}

} // namespace tarvanel
