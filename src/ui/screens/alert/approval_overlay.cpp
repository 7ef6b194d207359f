#include "ui/screens/alert/approval_overlay.h"

#include "model/truncated.h"
#include "ui/blocks/hairline.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/text.h"
#include "ui/look/measures.h"
#include "ui/look/motion.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"
#include "ui/screens/alert/answer_panel.h"
#include "ui/screens/alert/approval_metrics.h"
#include "ui/screens/alert/approval_picture.h"

#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace velmora {

namespace {

constexpr Seconds longestOverdue{5};

QString titleFor(const LiveState& state) {
    const CameraInfo* camera = state.visitor ? findCamera(state.site, state.visitor->cameraId) : nullptr;
    return camera ? ApprovalOverlay::tr("Someone you don't know is at the %1 camera.")
                        .arg(nameInSentence(shownText(camera->name)))
                  : ApprovalOverlay::tr("Someone you don't know is at the grounds.");
}

QString bodyFor(const Settings& settings) {
    return ApprovalOverlay::tr(
               "Launch the drone to keep an eye on them? It will fly at %1 m, follow about %2 m back, "
               "stay inside your boundary and come home on its own.")
        .arg(truncated(settings.flightHeight))
        .arg(truncated(settings.followDistance));
}

} // namespace

ApprovalOverlay::ApprovalOverlay(AppStore& store, AnswerGuard& guard, QWidget* window)
    : OverlayCard(Measure::approvalCard, window),
      store_(store),
      guard_(guard),
      growth_(*this, Motion::banner, QEasingCurve::OutCubic) {
    build();
    connect(&growth_, &Transition::changed, this, &ApprovalOverlay::updateSize);
    connect(&countdown_, &UiTimer::timeout, this, &ApprovalOverlay::countDown);
    connect(picture_, &ApprovalPicture::clicked, this, [this] { setEnlarged(!enlarged_); });
    connect(this, &OverlayCard::dismissed, this, [this] { setEnlarged(false); });
    connect(answers_, &AnswerPanel::hideRequested, this, [this] {
        hidden_ = true;
        updateAlert();
    });
    connect(&store_, &AppStore::stateChanged, this, &ApprovalOverlay::updateAlert);
    connect(&store_, &AppStore::moved, this, [this] {
        if (isOpen())
            showState(*store_.knownState());
    });
    connect(&store_, &AppStore::freshnessChanged, this, &ApprovalOverlay::updateAlert);
    connect(&store_, &AppStore::pendingCommandChanged, this, &ApprovalOverlay::updateAlert);
}

void ApprovalOverlay::build() {
    picture_ = new ApprovalPicture(card());
    lower_ = new QWidget(card());
    title_ = new Text({}, Type::overlayTitle, SB::ink, lower_);
    body_ = new Text({}, Type::overlayBody, SB::body, lower_);
    line_ = new Hairline(lower_);
    metrics_ = new ApprovalMetrics(lower_);
    answers_ = new AnswerPanel(store_, guard_, lower_);
    answers_->setFixedWidth(Measure::approvalCard - 2 * Measure::approvalPadding);
    column()->addWidget(picture_);
    column()->addWidget(lower_);
    arrange();
}

void ApprovalOverlay::arrange() {
    for (QWidget* words : std::initializer_list<QWidget*>{title_, body_, line_})
        words->setVisible(!enlarged_);
    metrics_->setNarrow(enlarged_);
    answers_->setGap(enlarged_ ? Measure::gap8 : Measure::gap20);
    delete lower_->layout();
    lower_->setLayout(enlarged_ ? enlargedLayout() : compactLayout());
}

QLayout* ApprovalOverlay::compactLayout() {
    auto* rows = new QVBoxLayout;
    rows->setContentsMargins(Measure::approvalPadding, Measure::approvalPadding, Measure::approvalPadding,
                             Measure::approvalPadding);
    rows->setSpacing(0);
    rows->addWidget(title_);
    rows->addSpacing(Measure::gap12);
    rows->addWidget(body_);
    rows->addSpacing(Measure::gap24);
    rows->addWidget(line_);
    rows->addSpacing(Measure::gap16);
    rows->addWidget(metrics_);
    rows->addSpacing(Measure::gap20);
    rows->addWidget(answers_);
    return rows;
}

QLayout* ApprovalOverlay::enlargedLayout() {
    auto* row = new QHBoxLayout;
    row->setContentsMargins(Measure::enlargedMargins);
    row->setSpacing(Measure::gap16);
    row->addWidget(metrics_, 0, Qt::AlignTop);
    row->addStretch(1);
    row->addWidget(answers_, 0, Qt::AlignTop);
    return row;
}

void ApprovalOverlay::setEnlarged(bool enlarged) {
    if (enlarged == enlarged_)
        return;
    enlarged_ = enlarged;
    arrange();
    growth_.moveTo(enlarged ? 1 : 0);
}

/// The whole picture, as large as the window allows.
QSize ApprovalOverlay::enlargedPicture() const {
    const QSize room =
        size() - QSize(2 * Measure::enlargedAround, 2 * Measure::enlargedAround + Measure::titleStrip +
                                                        Measure::approvalBar + Measure::enlargedLower);
    const double width = std::min(
        {double(room.width()), room.height() * Measure::enlargedRatio, double(Measure::enlargedCard)});
    return QSizeF(width, width / Measure::enlargedRatio).toSize();
}

void ApprovalOverlay::updateSize() {
    const double share = growth_.value();
    const QSizeF picture = QSizeF(Measure::approvalCard, Measure::approvalPicture) * (1 - share) +
                           QSizeF(enlargedPicture()) * share;
    card()->setFixedWidth(picture.toSize().width());
    picture_->setPictureSize(picture.toSize(), share);
    update(); // the shadow
}

void ApprovalOverlay::updateAlert() {
    const auto alert = store_.shownAlert();
    const bool live = store_.freshness() == Freshness::live;
    const bool isBack = !std::exchange(wasLive_, live) && live;
    if (alert != asked_ || isBack)
        hidden_ = false;
    if (!alert || hidden_) {
        countdown_.stop();
        close();
        return;
    }
    const bool isNew = !isOpen() || alert != asked_;
    asked_ = alert;
    refresh();
    if (!isNew)
        return;
    setEnlarged(false);
    answers_->reset();
    countdown_.start();
    if (isOpen())
        setFocus(Qt::OtherFocusReason);
    open();
    emit asked();
}

void ApprovalOverlay::refresh() {
    const LiveState& state = *store_.knownState();
    showState(state);
    title_->setText(titleFor(state));
    setAccessibleName(title_->text());
    body_->setText(bodyFor(store_.settings()));
    countDown();
    update(); // the guard waits for the picture of an alert that can be answered again
}

/// What changes while the visitor walks on.
void ApprovalOverlay::showState(const LiveState& state) {
    picture_->setState(state, store_.settings(), store_.freshness());
    metrics_->setState(state, store_.settings());
}

/// Over a silent link the alert is over at its deadline. A server that keeps an alert after its deadline must
/// not cover the window for ever.
void ApprovalOverlay::countDown() {
    if (!store_.shownAlert()) {
        updateAlert();
        return;
    }
    const LiveState& state = *store_.knownState();
    const auto left = timeLeft(state, store_.settings(), store_.now());
    picture_->setTimeLeft(left);
    metrics_->setTimeLeft(left, store_.freshness());
    answers_->setHideable(store_.overdue() > longestOverdue);
}

/// A restored window need not be painted again, but the guard waits for it.
void ApprovalOverlay::showEvent(QShowEvent*) {
    update();
}

void ApprovalOverlay::resizeEvent(QResizeEvent* event) {
    OverlayCard::resizeEvent(event);
    updateSize();
}

void ApprovalOverlay::paintEvent(QPaintEvent* event) {
    OverlayCard::paintEvent(event);
    if (isOpen())
        guard_.cardPainted();
}

} // namespace velmora
