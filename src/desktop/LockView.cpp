#include "desktop/LockView.h"

#include "desktop/Look.h"
#include "engine/PrayerNames.h"
#include "lock/LockScreenState.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

namespace tarvanel {

namespace {

const QString arabicLine = QString::fromUtf8("حَيَّ عَلَى الصَّلَاةِ  •  حَيَّ عَلَى الْفَلَاحِ");

QLabel* centredLabel(QWidget* parent, const QFont& font, const QColor& colour,
                     bool wordWrap = false) {
    return look::textLabel(parent, font, colour, wordWrap, Qt::AlignHCenter);
}

class QuoteCard : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        look::paintGlassCard(p, rect(), 24, 0.07);
    }
};

} // namespace

GlassLabel::GlassLabel(double radius, QWidget* parent) : QLabel(parent), radius_(radius) {}

void GlassLabel::paintEvent(QPaintEvent* event) {
    {
        QPainter p(this);
        look::paintGlassCard(p, rect(), radius_, 0.09);
    }
    QLabel::paintEvent(event);
}

QString LockView::captionFor(const QString& prayer) {
    if (prayer == QLatin1String("Preview") || prayer == QLatin1String("Test")) {
        //: Above the name of a lock that is only tried out from the settings; capitals if your
        //: script has them
        return tr("PREVIEW");
    }
    //: Above the prayer's name on the lock screen, e.g. IT'S TIME FOR / Fajr; capitals if your
    //: script has them
    return tr("IT'S TIME FOR");
}

// The big name: a prayer's, or that of a lock only tried out.
QString LockView::nameFor(const QString& prayer) {
    //: The name of a lock tried out from the settings, shown in place of a prayer's name
    if (prayer == QLatin1String("Preview")) return tr("Preview");
    //: The name of a lock started for a test, shown in place of a prayer's name
    if (prayer == QLatin1String("Test")) return tr("Test");
    return prayerLabel(prayer);
}

LockView::LockView(const QString& prayer, const Quote& quote, LockScreenState* state,
                   QWidget* parent)
    : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(40, 0, 40, 44);
    column->setSpacing(18);
    column->addStretch(1);

    QFont kicker = look::systemFont(11, QFont::Bold);
    kicker.setLetterSpacing(QFont::AbsoluteSpacing, 1.6);
    caption_ = centredLabel(this, kicker, look::white(0.55));
    caption_->setText(captionFor(prayer));
    column->addWidget(caption_);

    name_ = centredLabel(this, look::systemFont(104, QFont::Bold), Qt::white);
    name_->setText(nameFor(prayer));

    column->addWidget(name_);

    auto* arabic = centredLabel(this, look::arabicFont(30), look::white(0.85));
    arabic->setText(arabicLine);
    column->addWidget(arabic);

    countdown_ = new GlassLabel(30, this);
    countdown_->setFont(look::systemFont(20, QFont::DemiBold));
    QPalette palette = countdown_->palette();
    palette.setColor(QPalette::WindowText, Qt::white);
    countdown_->setPalette(palette);
    countdown_->setTextFormat(Qt::PlainText);
    countdown_->setAlignment(Qt::AlignCenter);
    countdown_->setContentsMargins(26, 12, 26, 12);
    column->addWidget(countdown_, 0, Qt::AlignHCenter);

    quoteCard_ = new QuoteCard(this);
    quoteCard_->setMaximumWidth(720);
    auto* card = new QVBoxLayout(quoteCard_);
    card->setContentsMargins(20, 20, 20, 20);
    card->setSpacing(8);
    quoteText_ =
        centredLabel(quoteCard_, look::systemFont(16, QFont::Normal), look::white(0.85), true);
    quoteText_->setText(QStringLiteral("“") + quote.text + QStringLiteral("”"));
    card->addWidget(quoteText_);
    auto* source =
        centredLabel(quoteCard_, look::systemFont(12, QFont::DemiBold), look::white(0.5), true);
    source->setText(quote.source);
    card->addWidget(source);
    quoteCard_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    auto* cardRow = new QHBoxLayout;
    cardRow->addStretch(1);
    cardRow->addWidget(quoteCard_, 100);
    cardRow->addStretch(1);
    column->addLayout(cardRow);

    // The column's spacing puts 18 px above the guardian line; a hidden line takes none.
    guardian_ = centredLabel(this, look::systemFont(13, QFont::Medium), look::white(0.4));
    column->addWidget(guardian_);
    column->addStretch(1);

    setCountdown(state ? state->countdown() : QString());
    setGuardian(state ? state->guardian() : QString());
    if (state) {
        connect(state, &LockScreenState::countdownChanged, this, &LockView::setCountdown);
        connect(state, &LockScreenState::guardianChanged, this, &LockView::setGuardian);
    }
}

void LockView::setCountdown(const QString& text) {
    countdown_->setText(text);
    countdown_->setVisible(!text.isEmpty());
}

void LockView::setGuardian(const QString& text) {
    guardian_->setText(text);
    guardian_->setVisible(!text.isEmpty());
}

void LockView::paintEvent(QPaintEvent*) {
    QPainter p(this);
    look::paintAurora(p, rect(), 0.9);
    if (!painted_) {
        painted_ = true;
        emit firstPaint();
    }
}

} // namespace tarvanel
