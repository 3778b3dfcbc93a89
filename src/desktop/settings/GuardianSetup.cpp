#include "desktop/settings/GuardianSetup.h"

#include "desktop/settings/SectionKit.h"
#include "guardian/Guardian.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace tarvanel {

QImage qrImage(const QString& text, int modulePixels) {
    const auto matrix = Guardian::qrMatrix(text);
    if (!matrix || matrix->size == 0) return {};
    const int quiet = 4;
    const int side = (matrix->size + 2 * quiet) * modulePixels;
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter p(&image);
    for (int y = 0; y < matrix->size; ++y)
        for (int x = 0; x < matrix->size; ++x)
            if (matrix->at(x, y))
                p.fillRect((x + quiet) * modulePixels, (y + quiet) * modulePixels, modulePixels,
                           modulePixels, Qt::black);
    return image;
}

GuardianSetup::GuardianSetup(PrayerSettingsModel& model, QWidget* parent)
    : QWidget(parent), model_(model) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    qr_ = new QLabel(this);
    qr_->setAccessibleName(tr("QR code"));
    column->addWidget(qr_, 0, Qt::AlignHCenter);
    //: The apps are proper names; Apple's app is called Passwords
    column->addWidget(
        wrapped(tr("Ask the person you trust to scan this with an authenticator app (Google "
                   "Authenticator, Microsoft Authenticator, Authy, or Apple's Passwords app), or "
                   "to type the key:"),
                this));
    key_ = new QLineEdit(this);
    key_->setReadOnly(true);
    //: The secret key of the guardian's code, shown to be typed into an app
    key_->setAccessibleName(tr("Key"));
    QFont mono(QStringLiteral("monospace"));
    mono.setStyleHint(QFont::Monospace);
    mono.setPointSizeF(key_->font().pointSizeF() * 1.2);
    key_->setFont(mono);
    column->addWidget(key_);
    auto* form = new QFormLayout;
    code_ = new QLineEdit(this);
    code_->setPlaceholderText(tr("Code from their app"));
    //: The six-digit code the guardian's app shows
    const QString codeText = tr("Code");
    code_->setAccessibleName(codeText);
    code_->setMaxLength(16);
    auto* codeLabel = new QLabel(codeText, this);
    codeLabel->setBuddy(code_);
    form->addRow(codeLabel, code_);
    column->addLayout(form);
    PrayerSettingsModel* m = &model_;
    connect(code_, &QLineEdit::textChanged, m, [m](const QString& t) { m->setGuardianCode(t); });
    connect(code_, &QLineEdit::returnPressed, m, [m] { m->confirmGuardian(); });
    column->addWidget(hbox({button(tr("Confirm"), [m] { m->confirmGuardian(); }),
                            button(tr("Cancel"), [m] { m->cancelGuardian(); })}));

    watch(model_, this, {Field::guardianDraft, Field::guardianCode}, [this] { refresh(); });
}

void GuardianSetup::refresh() {
    const auto draft = model_.guardianDraft();
    if (draft && qr_->property("secret").toByteArray() != *draft) {
        qr_->setProperty("secret", *draft);
        // Six pixels a module: about 250 px across, which phone cameras read from a screen.
        const QImage image = qrImage(Guardian::otpauthURL(*draft), 6);
        qr_->setPixmap(QPixmap::fromImage(image));
        key_->setText(model_.guardianSecretText());
        key_->setMinimumWidth(key_->fontMetrics().horizontalAdvance(key_->text()) + 24);
    }
    if (code_->text() != model_.guardianCode()) code_->setText(model_.guardianCode());
}

} // namespace tarvanel
