#include "ui/screens/stale_banner.h"

#include "ui/blocks/accessibility.h"
#include "ui/blocks/sb_button.h"
#include "ui/blocks/text.h"
#include "ui/blocks/text_line.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"

#include <QHBoxLayout>

namespace velmora {

StaleBanner::StaleBanner(AppStore& store, QWidget* parent, Section screen)
    : QWidget(parent),
      store_(store),
      screen_(screen),
      title_(new Text({}, Type::staleTitle, SB::alert, this)),
      detail_(new TextLine(Type::staleText.line, this)) {
    declareRole(this, QAccessible::AlertMessage);
    title_->setMaximumLines(1);
    auto* settings = new SBButton(tr("Connection settings"), {.kind = SBButtonKind::quiet}, this);
    open_ = new SBButton(tr("Open live flight →"), {.kind = SBButtonKind::secondary}, this);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(0);
    texts->addStretch(1);
    texts->addWidget(title_);
    texts->addWidget(detail_);
    texts->addStretch(1);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(Measure::staleTextX, 0, Measure::gap8, 0);
    row->setSpacing(Measure::gap4);
    row->addLayout(texts, 1);
    row->addSpacing(Measure::gap8);
    row->addWidget(settings, 0, Qt::AlignVCenter);
    row->addWidget(open_, 0, Qt::AlignVCenter);
    connect(settings, &SBButton::clicked, this, [this] { store_.openConnection(); });
    connect(open_, &SBButton::clicked, this, [this] { store_.setSection(Section::live); });
    connect(&store_, &AppStore::linkStatusChanged, this, &StaleBanner::refresh);
    connect(&store_, &AppStore::freshnessChanged, this, &StaleBanner::refresh);
    connect(&everySecond_, &UiTimer::timeout, this, &StaleBanner::refresh);
    open_->hide();
}

bool StaleBanner::isDue(const AppStore& store) {
    return store.freshness() == Freshness::stale ||
           (store.freshness() == Freshness::unknown && store.linkStatus().kind == LinkStatus::Case::failed);
}

QString StaleBanner::pictureAge(const AppStore& store) {
    return store.lastAnswerAt() ? tr("Picture %1 old").arg(age(store.now() - *store.lastAnswerAt()))
                                : QString();
}

QWidget* StaleBanner::openButton() const {
    return open_;
}

QSize StaleBanner::sizeHint() const {
    return {QWidget::sizeHint().width(), Measure::bannerHeight};
}

void StaleBanner::refresh() {
    if (!isVisible() || store_.freshness() == Freshness::live)
        return;
    title_->setText(store_.linkStatus().text());
    detail_->setRuns(detail());
    open_->setVisible(screen_ == Section::overview && store_.phase() != Phase::docked);
    setAccessibleName(title_->text());
    setAccessibleDescription(textOf(detail()) + ' ' + explanation());
    setToolTip(explanation());
}

std::vector<TextRun> StaleBanner::detail() const {
    const auto plain = [](const QString& text) { return TextRun{text, Type::staleText, SB::body}; };
    const auto strong = [](const QString& text) { return TextRun{text, Type::staleTextStrong, SB::ink}; };
    const bool overview = screen_ == Section::overview;
    const QString warning =
        overview ? tr("Commands may not arrive.") : tr("Commands may not arrive until the link is back.");
    if (!store_.lastAnswerAt())
        return {plain(tr("No picture received yet.") + ' ' + warning)};
    const QString old = age(store_.now() - *store_.lastAnswerAt());
    const QString text =
        !overview ? tr("This picture is *%1 old*, received %2.").arg(old, timeOfDay(*store_.lastAnswerAt()))
        : store_.phase() == Phase::docked
            ? tr("Picture *%1 old*.").arg(old)
            : tr("*%1* — picture *%2 old*.").arg(phaseWord(store_.phase()), old);
    std::vector<TextRun> runs;
    for (const QString& part : text.split('*'))
        runs.push_back(runs.size() % 2 == 0 ? plain(part) : strong(part));
    runs.push_back(plain(' ' + warning));
    return runs;
}

QString StaleBanner::explanation() const {
    const QString trying = tr("Velmora tries again twice a second.");
    return store_.lastAnswerAt()
               ? tr("Last received at %1.").arg(timeOfDay(*store_.lastAnswerAt())) + ' ' + trying
               : trying;
}

void StaleBanner::showEvent(QShowEvent*) {
    refresh();
    everySecond_.setActive(screen_ == Section::live);
}

void StaleBanner::hideEvent(QHideEvent*) {
    everySecond_.stop();
}

void StaleBanner::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    fillRounded(painter, rect(), Measure::cardRadius, SB::faded(SB::alert, 0.05), SB::faded(SB::alert, 0.24));
    constexpr double icon = Measure::gap20;
    paintIcon(painter, {Measure::staleIconX + icon / 2, height() / 2.0}, icon, Icon::brokenLink, SB::alert);
}

} // namespace velmora
