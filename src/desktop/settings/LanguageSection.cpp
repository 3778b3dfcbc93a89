// 14. Language: applies at once (the menu, the next window), without waiting for Save.
#include "base/Language.h"
#include "desktop/UiLanguage.h"
#include "desktop/settings/SectionKit.h"
#include "records/UserDefaults.h"

#include <QComboBox>
#include <QCoreApplication>

namespace tarvanel {

QWidget* makeLanguageSection(SectionContext&) {
    auto* s = new Section(
        QCoreApplication::translate("Settings", "Language"),
        QCoreApplication::translate("Settings", "The menu and every window opened from now on use "
                                                "this language. System follows your desktop's."));
    auto* choice = new QComboBox;
    const QString current = UserDefaults().language();
    for (const LanguageChoice& l : languageChoices()) {
        choice->addItem(l.nativeName, l.code);
        if (l.code == current) choice->setCurrentIndex(choice->count() - 1);
    }
    s->addRow(QCoreApplication::translate("Settings", "Language"), choice);
    QObject::connect(choice, &QComboBox::activated, choice, [choice](int i) {
        const QString code = choice->itemData(i).toString();
        UserDefaults().setLanguage(code);
        useLanguage(code);
    });
    return s;
}

} // namespace tarvanel
