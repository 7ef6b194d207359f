#include "ui/screens/welcome/welcome_view.h"

#include "ui/blocks/badge.h"
#include "ui/blocks/headline.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/sb_button.h"
#include "ui/blocks/text.h"
#include "ui/blocks/wordmark.h"
#include "ui/look/art.h"
#include "ui/look/machine.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"

#include <QPainter>
#include <QVBoxLayout>

namespace velmora {

namespace {

/// The shield next to the title.
class Shield : public QWidget {
public:
    explicit Shield(QWidget* parent) : QWidget(parent) {
        setFixedSize(Measure::welcomeShield, Measure::welcomeShield);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        paintShield(painter, rect());
    }
};

} // namespace

WelcomeView::WelcomeView(AppStore& store, QWidget* parent)
    : QWidget(parent), store_(store), column_(buildColumn()) {
    auto* all = new QGridLayout(this);
    all->setContentsMargins(0, Measure::heroMinimum, 0, Measure::welcomeBottom);
    all->addWidget(column_, 0, 0, Qt::AlignHCenter | Qt::AlignBottom);
}

QWidget* WelcomeView::buildColumn() {
    auto* column = new QWidget(this);
    column->setFixedWidth(Measure::welcomeColumn);
    auto* rows = bareLayout<QVBoxLayout>(column);
    rows->addWidget(buildTitle());
    rows->addSpacing(Measure::gap8);
    rows->addWidget(new Headline(Sentence::marked(tr("A second pair of eyes over *your grounds*.")),
                                 Type::welcomeHeadline, false, column));
    rows->addSpacing(Measure::gap24);
    rows->addWidget(
        buildStep(1, tr("Your cameras spot someone they don't recognise"),
                  tr("UniFi Protect face and person detection. Family and friends you've added are "
                     "ignored.")));
    rows->addSpacing(Measure::gap16);
    rows->addWidget(buildStep(
        2, tr("You decide"),
        forThisMachine(tr("An alert arrives on this computer and your phone. The drone only launches "
                          "when you say yes."),
                       tr("An alert arrives on this Mac and your phone. The drone only launches when "
                          "you say yes."))));
    rows->addSpacing(Measure::gap16);
    rows->addWidget(
        buildStep(3, tr("The drone keeps watch, then comes home"),
                  tr("It follows from about 15 m at 15 m high, never leaves your boundary, rides out gusts "
                     "and lands on its pad.")));
    rows->addSpacing(Measure::gap28);
    rows->addWidget(buildButtons());
    rows->addSpacing(Measure::gap12);
    rows->addWidget(
        new Label2(tr("Demo mode runs a built-in simulation of the drone, cameras and your grounds, so you "
                      "can try everything now."),
                   false, column));
    return column;
}

QWidget* WelcomeView::buildTitle() {
    auto* title = new QWidget(this);
    auto* row = bareLayout<QHBoxLayout>(title, Measure::wordmarkGap);
    row->addWidget(new Shield(title));
    row->addWidget(new Text(tr("Welcome to Velmora"), Type::groupHeading, SB::ink, title), 1);
    return title;
}

QWidget* WelcomeView::buildStep(int number, const QString& title, const QString& text) {
    auto* step = new QWidget(this);
    step->setMaximumWidth(Measure::welcomeSteps);
    auto* words = new QVBoxLayout;
    words->setSpacing(0);
    words->addWidget(new Text(title, Type::groupHeading, SB::ink, step));
    words->addWidget(new Text(text, Type::stepText, SB::body, step));
    auto* row = bareLayout<QHBoxLayout>(step, Measure::gap16);
    row->addWidget(new NumberBadge(number, step), 0, Qt::AlignTop);
    row->addLayout(words, 1);
    return step;
}

QWidget* WelcomeView::buildButtons() {
    auto* buttons = new QWidget(this);
    auto* explore =
        new SBButton(tr("Explore in demo mode"), {.kind = SBButtonKind::primary, .large = true}, buttons);
    auto* network =
        new SBButton(tr("Connect to velmora"), {.kind = SBButtonKind::secondary, .large = true}, buttons);
    auto* row = bareLayout<QHBoxLayout>(buttons, Measure::gap12);
    row->addWidget(explore);
    row->addWidget(network);
    row->addStretch(1);
    connect(explore, &SBButton::clicked, this, [this] { finish(false); });
    connect(network, &SBButton::clicked, this, [this] { finish(true); });
    return buttons;
}

/// "Connect" opens the settings with the server's address; it does not leave demo mode.
void WelcomeView::finish(bool link) {
    Settings settings = store_.settings();
    settings.onboarded = true;
    store_.setSettings(settings);
    store_.setShowWelcome(false);
    if (link)
        store_.setSection(Section::settings);
}

/// Scales the picture to the area above the column and crops it around its centre.
void WelcomeView::loadHero() {
    const QSize pixels = QSize(width(), column_->y()) * devicePixelRatioF();
    if (hero_.size() == pixels)
        return;
    hero_ = QPixmap(pixels);
    hero_.fill(SB::panel);
    QPainter painter(&hero_);
    if (const QImage picture = Art::find(QStringLiteral("welcome-hero")); !picture.isNull()) {
        const QImage scaled =
            picture.scaled(pixels, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
        painter.drawImage((pixels.width() - scaled.width()) / 2, (pixels.height() - scaled.height()) / 2,
                          scaled);
    }
    painter.end();
    hero_.setDevicePixelRatio(devicePixelRatioF());
}

void WelcomeView::paintEvent(QPaintEvent*) {
    loadHero();
    QPainter painter(this);
    painter.fillRect(rect(), SB::page);
    painter.drawPixmap(0, 0, hero_);
    const QRectF end(0, column_->y() - Measure::heroFade, width(), Measure::heroFade);
    QLinearGradient fade(end.topLeft(), end.bottomLeft());
    fade.setColorAt(0, SB::faded(SB::page, 0));
    fade.setColorAt(1, SB::page);
    painter.fillRect(end, fade);
}

} // namespace velmora
