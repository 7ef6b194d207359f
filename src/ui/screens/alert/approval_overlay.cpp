#include "ui/screens/alert/approval_overlay.h"

#include "model/truncated.h"
#include "ui/blocks/hairline.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/metric.h"
#include "ui/blocks/text.h"
#include "ui/guard/answer_button.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"
#include "ui/screens/alert/approval_picture.h"

#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr double answerTimeout = 5;       // seconds; a command request may take three
constexpr double maximumCountdown = 3600; // seconds; a later deadline means that a clock is wrong

QString titleFor(const CameraInfo* camera) {
    const QString location = camera ? ApprovalOverlay::tr("%1 camera").arg(toQString(camera->name).toLower())
                                    : ApprovalOverlay::tr("grounds");
    return ApprovalOverlay::tr("Someone you don't know is at the %1.").arg(location);
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
    : OverlayCard(Measure::approvalCard, window), store_(store), guard_(guard) {
    build();
    connect(&countdown_, &UiTimer::timeout, this, &ApprovalOverlay::countDown);
    connect(&guard_, &AnswerGuard::answered, this, [this] { answeredAt_ = store_.now(); });
    connect(&store_, &AppStore::stateChanged, this, &ApprovalOverlay::updateAlert);
    connect(&store_, &AppStore::freshnessChanged, this, &ApprovalOverlay::updateAlert);
}

void ApprovalOverlay::build() {
    picture_ = new ApprovalPicture(card());
    title_ = new Text({}, Type::overlayTitle, SB::ink, card());
    body_ = new Text({}, Type::overlayBody, SB::body, card());
    auto* words = new QVBoxLayout;
    words->setContentsMargins(Measure::approvalPadding, Measure::approvalPadding, Measure::approvalPadding,
                              Measure::approvalPadding);
    words->setSpacing(0);
    words->addWidget(title_);
    words->addSpacing(Measure::gap12);
    words->addWidget(body_);
    words->addSpacing(Measure::gap24);
    words->addWidget(new Hairline(card()));
    words->addSpacing(Measure::gap16);
    words->addWidget(buildMetrics());
    words->addSpacing(Measure::gap20);
    words->addWidget(
        new Text(tr("You must be able to see the drone while it flies. Nothing launches without your yes."),
                 Type::overlayNote, SB::muted, card()));
    words->addSpacing(Measure::gap20);
    words->addWidget(buildButtons());
    column()->addWidget(picture_);
    column()->addLayout(words);
}

QWidget* ApprovalOverlay::buildMetrics() {
    auto* row = new QWidget(card());
    auto* layout = bareLayout<QHBoxLayout>(row);
    const auto add = [&](const QString& label, int share) {
        auto* metric = new Metric(label, Metric::Size::regular, false, row);
        metric->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        layout->addWidget(metric, share);
        return metric;
    };
    match_ = add(tr("Match"), 151);
    battery_ = add(tr("Battery"), 108);
    wind_ = add(tr("Wind"), 108);
    expires_ = add(tr("Expires in"), 97);
    expires_->setTint(SB::purple);
    return row;
}

QWidget* ApprovalOverlay::buildButtons() {
    auto* row = new QWidget(card());
    auto* ignore = new AnswerButton(Command::ignore, guard_, tr("Ignore"),
                                    {.kind = SBButtonKind::secondary, .wide = true, .large = true}, row);
    auto* launch = new AnswerButton(
        Command::approve, guard_, tr("Launch drone"),
        {.kind = SBButtonKind::primary, .wide = true, .large = true, .icon = Icon::paperPlane}, row);
    auto* layout = bareLayout<QHBoxLayout>(row, Measure::gap12);
    layout->addWidget(ignore, 10);
    layout->addWidget(launch, 16);
    return row;
}

/// Closes the card if the server keeps asking after an answer, so that it does not block the window.
void ApprovalOverlay::updateAlert() {
    const auto alert = store_.waitingAlert();
    if (!alert) {
        countdown_.stop();
        answeredAt_.reset();
        ineffective_.reset();
        close();
        return;
    }
    refresh();
    if (alert == asked_ && answeredAt_ && (store_.now() - *answeredAt_).count() > answerTimeout)
        ineffective_ = asked_;
    if (alert == ineffective_) { // the overview still offers the launch
        countdown_.stop();
        close();
        return;
    }
    if (isOpen() && alert == asked_)
        return;
    asked_ = alert;
    answeredAt_.reset();
    const auto deadline = store_.knownState()->approvalDeadline;
    initialTimeLeft_ = deadline ? (*deadline - store_.now()).count() : 0;
    countDown();
    countdown_.start();
    if (isOpen())
        setFocus(Qt::OtherFocusReason);
    open();
    emit asked();
}

void ApprovalOverlay::refresh() {
    const LiveState& state = *store_.knownState();
    const CameraInfo* camera = state.visitor ? findCamera(state.site, state.visitor->cameraId) : nullptr;
    const QString location = camera ? isolated(toQString(camera->name)) : tr("Grounds");
    const QString time = state.missionStart ? timeOfDay(*state.missionStart) : QString();
    picture_->setAlert(camera ? toQString(camera->snapshot) : QString(),
                       time.isEmpty() ? location : location + QStringLiteral(" · ") + time);
    title_->setText(titleFor(camera));
    setAccessibleName(title_->text());
    body_->setText(bodyFor(store_.settings()));
    match_->setValue(percent(state.visitor ? state.visitor->confidence : 0), tr("% unknown"));
    battery_->setValue(rounded(state.drone.battery), tr("%"));
    wind_->setValue(rounded(state.windKmh), tr("km/h"));
}

void ApprovalOverlay::countDown() {
    const auto deadline = store_.knownState()->approvalDeadline;
    const double left = deadline ? (*deadline - store_.now()).count() : 0;
    const bool plausible = left > 0 && left <= maximumCountdown;
    expires_->setValue(plausible ? QString::number(truncated(std::ceil(left))) : QStringLiteral("—"),
                       plausible ? tr("s") : QString());
    picture_->setTimeLeft(plausible && initialTimeLeft_ > 0 ? std::min(left / initialTimeLeft_, 1.0) : 0);
}

void ApprovalOverlay::paintEvent(QPaintEvent* event) {
    OverlayCard::paintEvent(event);
    if (isOpen())
        guard_.cardPainted();
}

} // namespace velmora
