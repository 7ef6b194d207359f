#include "ui/screens/stale_banner.h"

#include "ui/blocks/accessibility.h"
#include "ui/blocks/sb_button.h"
#include "ui/blocks/text.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"

#include <QHBoxLayout>

namespace velmora {

StaleBanner::StaleBanner(AppStore& store, QWidget* parent)
    : QWidget(parent),
      store_(store),
      title_(new Text({}, Type::staleTitle, SB::alert, this)),
      detail_(new Text({}, Type::body, SB::body, this)) {
    declareRole(this, QAccessible::AlertMessage);
    auto* settings = new SBButton(tr("Connection settings"), {.kind = SBButtonKind::quiet}, this);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(0);
    texts->addWidget(title_);
    texts->addWidget(detail_);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(Measure::staleMargins + QMargins(Measure::gap20 + Measure::gap16, 0, 0, 0));
    row->setSpacing(Measure::gap16);
    row->addLayout(texts, 1);
    row->addWidget(settings, 0, Qt::AlignVCenter);
    connect(settings, &SBButton::clicked, this, [this] { store_.setSection(Section::settings); });
    connect(&store_, &AppStore::linkStatusChanged, this, &StaleBanner::refresh);
    connect(&store_, &AppStore::freshnessChanged, this, &StaleBanner::refresh);
    connect(&everySecond_, &UiTimer::timeout, this, &StaleBanner::refresh);
}

bool StaleBanner::isDue(const AppStore& store) {
    return store.freshness() == Freshness::stale ||
           (store.freshness() == Freshness::unknown && store.linkStatus().kind == LinkStatus::Case::failed);
}

QString StaleBanner::pictureAge(const AppStore& store) {
    return store.lastAnswerAt() ? tr("Picture %1 old").arg(age(store.now() - *store.lastAnswerAt()))
                                : QString();
}

void StaleBanner::refresh() {
    if (!isVisible() || store_.freshness() == Freshness::live)
        return;
    title_->setText(store_.linkStatus().text());
    const QString trying = tr("Trying again twice a second. Commands may not arrive until the link is back.");
    detail_->setText(store_.lastAnswerAt() ? tr("This picture is %1 old, last received at %2. ")
                                                     .arg(age(store_.now() - *store_.lastAnswerAt()),
                                                          timeOfDay(*store_.lastAnswerAt())) +
                                                 trying
                                           : tr("No picture received yet. ") + trying);
    setAccessibleName(title_->text());
}

void StaleBanner::showEvent(QShowEvent*) {
    refresh();
    everySecond_.start();
}

void StaleBanner::hideEvent(QHideEvent*) {
    everySecond_.stop();
}

void StaleBanner::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    fillRounded(painter, rect(), Measure::cardRadius, SB::faded(SB::alert, 0.05), SB::faded(SB::alert, 0.24));
    constexpr double icon = Measure::gap20;
    paintIcon(painter, {Measure::staleMargins.left() + icon / 2, height() / 2.0}, icon, Icon::brokenLink,
              SB::alert);
}

} // namespace velmora
