// Arabic and Urdu: the settings form, a banner and the lock read right to left, and no text is
// cut short in the script's own font. The Language choice applies at once and is kept.
#include "desktop/BannerPanel.h"
#include "desktop/LockView.h"
#include "desktop/UiLanguage.h"
#include "desktop/settings/PrayerSettingsView.h"
#include "desktop/settings/SettingsWindow.h"
#include "lock/LockScreenState.h"
#include "records/UserDefaults.h"
#include "support/TestEnv.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QStyle>
#include <gtest/gtest.h>

using namespace tarvanel;
using test::pump;

namespace {

// Each shown label, button and check box whose text needs more room than it was given.
QStringList clipped(QWidget* root) {
    QStringList found;
    const auto report = [&](QWidget* w, const QString& text) {
        found << QStringLiteral("%1 %2x%3 needs %4x%5: %6")
                     .arg(QLatin1String(w->metaObject()->className()))
                     .arg(w->width())
                     .arg(w->height())
                     .arg(w->sizeHint().width())
                     .arg(w->sizeHint().height())
                     .arg(text);
    };
    for (QLabel* l : root->findChildren<QLabel*>()) {
        if (!l->isVisibleTo(root) || l->text().isEmpty()) continue;
        const bool fits = l->wordWrap() ? l->heightForWidth(l->width()) <= l->height()
                                        : l->sizeHint().width() <= l->width() &&
                                              l->sizeHint().height() <= l->height();
        if (!fits) report(l, l->text());
    }
    for (QAbstractButton* b : root->findChildren<QAbstractButton*>()) {
        const bool kind = qobject_cast<QPushButton*>(b) || qobject_cast<QCheckBox*>(b);
        if (!kind || !b->isVisibleTo(root) || b->text().isEmpty()) continue;
        if (b->sizeHint().width() > b->width() || b->sizeHint().height() > b->height())
            report(b, b->text());
    }
    return found;
}

// True when a label's text starts on the right, as a right-to-left reader expects.
bool readsFromTheRight(const QLabel* l) {
    return QStyle::visualAlignment(l->layoutDirection(), l->alignment()) & Qt::AlignRight;
}

} // namespace

TEST(RightToLeft, ArabicAndUrduMirrorTheSettingsBannerAndLockAndNoLanguageCutsATextShort) {
    // The direction and font belong to the whole application: put English back for the others.
    struct English {
        ~English() { useLanguage(QStringLiteral("en")); }
    } restore;
    const Quote quote{"Establish prayer for My remembrance.", "Qur'an 20:14", {}};

    for (const QString code : {"ar", "ur", "fr", "id", "ms", "tr", "en"}) {
        SCOPED_TRACE(code.toStdString());
        const bool rtl = code == QLatin1String("ar") || code == QLatin1String("ur");
        ASSERT_EQ(useLanguage(code), code);
        EXPECT_EQ(QApplication::layoutDirection(), rtl ? Qt::RightToLeft : Qt::LeftToRight);
        // Arabic in Naskh, Urdu in Nastaliq (the copy Qt draws right), ahead of any Latin face.
        if (rtl) {
            EXPECT_EQ(QApplication::font().families().first(),
                      code == QLatin1String("ar") ? "Noto Naskh Arabic" : "Tarvanel Nastaliq");
        }

        // The first-run form: its main button sits at the reading end of the bar.
        SettingsWindow host([] {});
        auto* view = new PrayerSettingsView(std::make_unique<PrayerSettingsModel>(Config(), true),
                                            PrayerSettingsActions{});
        host.show(QStringLiteral("Tarvanel"), QSize(620, 780), view);
        QWidget* w = host.window();
        ASSERT_TRUE(w);
        pump(50);
        EXPECT_EQ(w->isRightToLeft(), rtl);
        const int saveMiddle =
            view->saveButton()->mapTo(w, view->saveButton()->rect().center()).x();
        EXPECT_EQ(saveMiddle < w->width() / 2, rtl) << saveMiddle;
        EXPECT_EQ(clipped(w), QStringList());

        // A banner's texts start at the right edge.
        BannerView banner({QStringLiteral("Asr in 10 minutes."), quote, BannerStyle::normal, 16},
                          false);
        banner.show();
        pump(30);
        EXPECT_EQ(banner.isRightToLeft(), rtl);
        EXPECT_EQ(readsFromTheRight(banner.messageLabel()), rtl);
        EXPECT_EQ(readsFromTheRight(banner.quoteLabel()), rtl);
        EXPECT_EQ(clipped(&banner), QStringList());

        // The lock, with its countdown and guardian line showing.
        LockScreenState state;
        state.setCountdown(QStringLiteral("Screen unlocks in 4:59"));
        state.setGuardian(QStringLiteral("● ● ○ ○ ○ ○"));
        LockView lock(QStringLiteral("Asr"), quote, &state);
        lock.resize(1280, 800);
        lock.show();
        pump(30);
        EXPECT_EQ(lock.isRightToLeft(), rtl);
        EXPECT_TRUE(lock.guardianLabel()->isVisible());
        EXPECT_EQ(clipped(&lock), QStringList());
    }
}

TEST(LanguageChoice, AppliesAtOnceToTheNextWindowIsKeptAndSystemForgetsIt) {
    struct English {
        ~English() { useLanguage(QStringLiteral("en")); }
    } restore;
    const auto openForm = [] {
        return new PrayerSettingsView(std::make_unique<PrayerSettingsModel>(Config(), true),
                                      PrayerSettingsActions{});
    };
    const auto languageBox = [](QWidget* form) -> QComboBox* {
        for (QComboBox* c : form->findChildren<QComboBox*>())
            if (c->findData(QStringLiteral("fr")) >= 0) return c;
        return nullptr;
    };
    // Picks the entry of a language code, as the user would by its name.
    const auto choose = [&](QWidget* form, const QString& code) {
        QComboBox* box = languageBox(form);
        ASSERT_TRUE(box);
        const int i = box->findData(code);
        ASSERT_GE(i, 0) << code.toStdString();
        box->setCurrentIndex(i);
        emit box->activated(i);
    };
    const auto heads = [](QWidget* form) {
        QStringList texts;
        for (QLabel* l : form->findChildren<QLabel*>())
            texts << l->text();
        return texts;
    };

    std::unique_ptr<QWidget> first(openForm());
    choose(first.get(), QStringLiteral("fr"));
    EXPECT_EQ(UserDefaults().language(), QStringLiteral("fr"));
    const QString french = QCoreApplication::translate("Settings", "Language");
    EXPECT_NE(french, QStringLiteral("Language"));
    std::unique_ptr<QWidget> next(openForm());
    EXPECT_TRUE(heads(next.get()).contains(french));
    EXPECT_EQ(QLocale().language(), QLocale::French);

    choose(next.get(), QStringLiteral("ar"));
    EXPECT_EQ(UserDefaults().language(), QStringLiteral("ar"));
    EXPECT_EQ(QApplication::layoutDirection(), Qt::RightToLeft);

    // "System" removes the choice; the environment decides again.
    EXPECT_EQ(languageBox(next.get())->itemText(0), QStringLiteral("Système"));
    choose(next.get(), QString());
    EXPECT_EQ(UserDefaults().language(), QString());
    EXPECT_EQ(QSettings(UserDefaults::defaultPath(), QSettings::IniFormat).contains("language"),
              false);
}
