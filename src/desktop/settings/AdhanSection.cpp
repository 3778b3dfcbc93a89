// 8. Adhan: play it when a lock starts; choose, try and remove the sound.
#include "desktop/settings/SectionKit.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QPushButton>

namespace tarvanel {

QWidget* makeAdhanSection(SectionContext& c) {
    auto* s = new Section(QStringLiteral("Adhan"),
                          QStringLiteral("Pick any MP3, M4A, AIFF or WAV file."));
    PrayerSettingsModel* m = &c.model;
    s->addRow(boundToggle(c, QStringLiteral("Play the adhan when a lock starts"),
                          Field::adhanEnabled, &PrayerSettingsModel::adhanEnabled,
                          &PrayerSettingsModel::setAdhanEnabled));
    auto* name = new QLabel;
    QPushButton* play = button(QStringLiteral("Play"), [m] { m->togglePlay(); });
    QWidget* window = c.window;
    QPushButton* choose = button(QStringLiteral("Choose Sound…"), [m, window] {
        m->stopAdhan();
        QFileDialog dialog(window, QStringLiteral("Choose Sound"));
        dialog.setFileMode(QFileDialog::ExistingFile);
        dialog.setNameFilter(QStringLiteral("Sounds (*.mp3 *.m4a *.aif *.aiff *.wav)"));
        dialog.setLabelText(QFileDialog::Accept, QStringLiteral("Use This Adhan"));
        if (dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty())
            m->useAdhanFile(dialog.selectedFiles().first());
    });
    QPushButton* remove = button(QStringLiteral("Remove"), [m] { m->removeAdhan(); });
    watch(*m, name, {Field::adhanName, Field::playing}, [m, name, play, remove] {
        name->setText(m->adhanName().value_or(QStringLiteral("None (a chime plays)")));
        name->setAccessibleName(name->text());
        play->setText(m->playing() ? QStringLiteral("Stop") : QStringLiteral("Play"));
        play->setAccessibleName(play->text());
        play->setEnabled(m->adhanName().has_value());
        remove->setEnabled(m->adhanName().has_value());
    });
    s->addRow(QStringLiteral("Sound"), name);
    name->setAccessibleName(name->text());
    s->addRow(hbox({play, choose, remove}));
    return s;
}

} // namespace tarvanel
