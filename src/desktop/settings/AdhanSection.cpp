// 8. Adhan: play it when a lock starts; choose, try and remove the sound.
#include "desktop/settings/SectionKit.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QFileDialog>
#include <QPushButton>

namespace tarvanel {

QWidget* makeAdhanSection(SectionContext& c) {
    //: The call to prayer
    auto* s = new Section(
        QCoreApplication::translate("Settings", "Adhan"),
        QCoreApplication::translate("Settings", "Pick any MP3, M4A, AIFF or WAV file."));
    PrayerSettingsModel* m = &c.model;
    s->addRow(
        boundToggle(c, QCoreApplication::translate("Settings", "Play the adhan when a lock starts"),
                    Field::adhanEnabled, &PrayerSettingsModel::adhanEnabled,
                    &PrayerSettingsModel::setAdhanEnabled));
    auto* name = new QLabel;
    //: A button: play the chosen adhan
    QPushButton* play =
        button(QCoreApplication::translate("Settings", "Play"), [m] { m->togglePlay(); });
    QWidget* window = c.window;
    QPushButton* choose =
        button(QCoreApplication::translate("Settings", "Choose Sound…"), [m, window] {
            m->stopAdhan();
            QFileDialog dialog(window, QCoreApplication::translate("Settings", "Choose Sound"));
            dialog.setFileMode(QFileDialog::ExistingFile);
            //: A file type filter; keep the part in brackets as it is
            dialog.setNameFilter(
                QCoreApplication::translate("Settings", "Sounds (*.mp3 *.m4a *.aif *.aiff *.wav)"));
            dialog.setLabelText(QFileDialog::Accept,
                                QCoreApplication::translate("Settings", "Use This Adhan"));
            if (dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty())
                m->useAdhanFile(dialog.selectedFiles().first());
        });
    //: A button: stop using the chosen adhan
    QPushButton* remove =
        button(QCoreApplication::translate("Settings", "Remove"), [m] { m->removeAdhan(); });
    watch(*m, name, {Field::adhanName, Field::playing}, [m, name, play, remove] {
        name->setText(m->adhanName().value_or(
            QCoreApplication::translate("Settings", "None (a chime plays)")));
        name->setAccessibleName(name->text());
        //: A button: stop the adhan that plays
        play->setText(m->playing() ? QCoreApplication::translate("Settings", "Stop")
                                   : QCoreApplication::translate("Settings", "Play"));
        play->setAccessibleName(play->text());
        play->setEnabled(m->adhanName().has_value());
        remove->setEnabled(m->adhanName().has_value());
    });
    s->addRow(QCoreApplication::translate("Settings", "Sound"), name);

    name->setAccessibleName(name->text());
    s->addRow(hbox({play, choose, remove}));
    return s;
}

} // namespace tarvanel
