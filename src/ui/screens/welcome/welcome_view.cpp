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

#include <algorithm>

namespace velmora {

namespace {

// The house in the picture, as shares of its height: from above the chimneys to the foot of the walls
constexpr double houseTop = 0.169, houseBottom = 0.62;

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
    rows->addWidget(buildSteps());
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

QWidget* WelcomeView::buildSteps() {
    auto* steps = new QWidget(this);
    steps_ = new QVBoxLayout(steps);
    steps_->addWidget(
        buildStep(1, tr("Your cameras spot someone they don't recognise"),
                  tr("UniFi Protect face and person detection. Family and friends you've added are "
                     "ignored.")));
    steps_->addWidget(buildStep(
        2, tr("You decide"),
        forThisMachine(tr("An alert arrives on this computer and your phone. The drone only launches "
                          "when you say yes."),
                       tr("An alert arrives on this Mac and your phone. The drone only launches when "
                          "you say yes."))));
    steps_->addWidget(
        buildStep(3, tr("The drone keeps watch, then comes home"),
                  tr("It follows from about 15 m at 15 m high, never leaves your boundary, rides out gusts "
                     "and lands on its pad.")));
    return steps;
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
        store_.openConnection();
}

/// In a low window the texts move together, which leaves more room for the picture.
void WelcomeView::resizeEvent(QResizeEvent*) {
    const bool low = window()->height() < Measure::lowWindow;
    steps_->setContentsMargins(0, low ? Measure::gap16 : Measure::gap24, 0,
                               low ? Measure::gap20 : Measure::gap28);
    steps_->setSpacing(low ? Measure::gap12 : Measure::gap16);
    layout()->setContentsMargins(0, Measure::heroMinimum, 0, low ? Measure::gap24 : Measure::welcomeBottom);
    layout()->activate();
}

/// Where a picture of this size lies in the area above the column, in pixels: it covers the area, but the
/// house is not higher than the area without its fade, and its roof is never cut off.
QRectF WelcomeView::heroArea(QSizeF picture) const {
    const QSizeF area(width(), column_->y());
    const double covering = std::max(area.width() / picture.width(), area.height() / picture.height());
    const double room = area.height() - Measure::heroFadeLow / 2.0;
    const double whole = room / ((houseBottom - houseTop) * picture.height());
    const QSizeF size = picture * std::min(covering, whole);
    const double top = std::max((area.height() - size.height()) / 2, -houseTop * size.height());
    return {QPointF((area.width() - size.width()) / 2, top), size};
}

void WelcomeView::loadHero() {
    const QSize pixels = QSize(width(), column_->y()) * devicePixelRatioF();
    if (hero_.size() == pixels)
        return;
    hero_ = QPixmap(pixels);
    hero_.fill(SB::page);
    hero_.setDevicePixelRatio(devicePixelRatioF());
    const QImage picture = Art::find(QStringLiteral("welcome-hero"));
    if (picture.isNull())
        return;
    pictureRect_ = heroArea(picture.size());
    QPainter painter(&hero_);
    const QSize scaled = (pictureRect_.size() * devicePixelRatioF()).toSize();
    painter.drawImage(pictureRect_, picture.scaled(scaled, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

/// Fades the picture into the page: below, down to the foot of the house at most, and at the sides where it
/// does not reach the window's edges.
void WelcomeView::paintFades(QPainter& painter) const {
    const double end = column_->y(), foot = pictureRect_.top() + houseBottom * pictureRect_.height();
    const double below = std::clamp<double>(end - foot, Measure::heroFadeLow, Measure::heroFade);
    const double beside = std::min<double>(pictureRect_.left(), Measure::heroFade);
    const auto fade = [&](QPointF from, QPointF to) {
        QLinearGradient gradient(from, to);
        gradient.setColorAt(0, SB::faded(SB::page, 0));
        gradient.setColorAt(1, SB::page);
        painter.fillRect(QRectF(0, 0, width(), end), gradient);
    };
    fade({0, end - below}, {0, end});
    if (beside <= 0)
        return;
    fade({pictureRect_.left() + beside, 0}, {pictureRect_.left(), 0});
    fade({pictureRect_.right() - beside, 0}, {pictureRect_.right(), 0});
}

void WelcomeView::paintEvent(QPaintEvent*) {
    loadHero();
    QPainter painter(this);
    painter.fillRect(rect(), SB::page);
    painter.drawPixmap(0, 0, hero_);
    paintFades(painter);
}

} // namespace velmora
