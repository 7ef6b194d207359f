#include "ui/screens/settings/settings_view.h"

#include "ui/blocks/choice.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/page.h"
#include "ui/blocks/sb_button.h"
#include "ui/blocks/sb_row.h"
#include "ui/blocks/switch.h"
#include "ui/blocks/text.h"
#include "ui/blocks/text_field.h"
#include "ui/look/machine.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"
#include "ui/screens/settings/connection_form.h"
#include "ui/screens/settings/limits_sketch.h"
#include "ui/screens/settings/rule_line.h"
#include "ui/screens/settings/slider_line.h"

#include <QApplication>
#include <QDesktopServices>
#include <QEvent>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>

namespace velmora {

namespace {

QVBoxLayout* columnOf(QWidget* block) {
    return static_cast<QVBoxLayout*>(block->layout());
}

constexpr int pageWidth = Measure::settingsWidth + Measure::limitsSketchGap + Measure::limitsSketch.width();

QString trackingTitle(TrackingMode mode) {
    return mode == TrackingMode::own ? forThisMachine(SettingsView::tr("Guided by this computer"),
                                                      SettingsView::tr("Guided by this Mac"))
                                     : SettingsView::tr("DJI tracking hand-over");
}

QString trackingNote(TrackingMode mode) {
    return mode == TrackingMode::own
               ? SettingsView::tr(
                     "Your cameras locate the visitor and Velmora steers the drone. Works with any "
                     "supported drone.")
               : SettingsView::tr(
                     "Velmora flies the drone to the visitor, then hands over to the drone's own tracking "
                     "and takes back control near the boundary. Experimental: not yet confirmed on the "
                     "Mini 4 Pro.");
}

/// A line with a label, as wide as the labels of the sliders, and a control.
QWidget* labelled(const QString& label, QWidget* control, QWidget* parent) {
    auto* line = new QWidget(parent);
    line->setFixedHeight(Measure::formLine);
    auto* name = new Text(label, Type::body, SB::ink, line);
    name->setFixedWidth(Measure::sliderLabel);
    auto* row = bareLayout<QHBoxLayout>(line, Measure::gap20);
    row->addWidget(name, 0, Qt::AlignVCenter);
    row->addWidget(control, 0, Qt::AlignVCenter);
    row->addStretch(1);
    return line;
}

} // namespace

SettingsView::SettingsView(AppStore& store, QWidget* parent) : Screen(store, parent) {
    setPage(new Page({.eyebrow = tr("Settings"),
                      .headline = Sentence::marked(tr("How the drone *behaves*.")),
                      .lede = tr("These limits are enforced by velmora's safety layer, not just shown here."),
                      .width = pageWidth,
                      .contentGap = Measure::gap20,
                      .content = buildContent()},
                     this));
    refreshOn({&AppStore::settingsChanged});
    connect(&store_, &AppStore::stateChanged, this, [this] {
        if (isVisible())
            showLimits();
    });
    connect(&store_, &AppStore::connectionRequested, this, [this] { page().scrollToTop(); });
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget*, const QWidget* focused) { followFocus(focused); });
}

/// The controls are destroyed after the members, and lose the focus then.
SettingsView::~SettingsView() {
    disconnect(qApp, nullptr, this, nullptr);
}

/// The form, and right of it the sketch, which is no part of the layout: it keeps level with the first limit.
QWidget* SettingsView::buildContent() {
    auto* content = new QWidget(this);
    form_ = new QWidget(content);
    bareLayout<QVBoxLayout>(form_);
    form_->setMaximumWidth(Measure::settingsWidth);
    auto* row = bareLayout<QHBoxLayout>(content);
    row->addWidget(form_, 1);
    row->addStretch();
    buildForm();
    sketch_ = new LimitsSketch(content);
    for (QWidget* moved : {content, flight_})
        moved->installEventFilter(this);
    return content;
}

bool SettingsView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
        placeSketch();
    return Screen::eventFilter(watched, event);
}

void SettingsView::placeSketch() {
    QWidget* content = sketch_->parentWidget();
    sketch_->move(Measure::settingsWidth + Measure::limitsSketchGap,
                  limits_.front().line->mapTo(content, QPoint()).y());
    sketch_->setVisible(content->width() >= pageWidth);
}

void SettingsView::showLimits() {
    if (const LiveState* known = store_.knownState())
        sketch_->setSite(known->site);
    sketch_->setLimits(store_.settings());
}

/// Emphasises the limit whose slider has the focus.
void SettingsView::followFocus(const QWidget* focused) {
    const auto changing = std::ranges::find_if(
        limits_, [focused](const Limit& limit) { return focused && limit.line->isAncestorOf(focused); });
    sketch_->setChanging(changing == limits_.end() ? nullptr : changing->field);
}

void SettingsView::buildForm() {
    constexpr int sliderLead = (Measure::sliderRow - Measure::gap24) / 2;
    constexpr int radioLead = (Measure::radioRow - Measure::gap24) / 2;
    constexpr int segmentLead = (Measure::segmentedHeight - Measure::gap24) / 2;
    addRow(tr("Connection"), buildConnection(), radioLead);
    flight_ = addRow(tr("Flight"), buildFlight(), sliderLead);
    addRow(tr("Boundary"), buildBoundary(), sliderLead);
    addRow(tr("Coming home"), buildComingHome(), sliderLead);
    addRow(tr("Tracking"), buildTracking(), segmentLead);
    addRow(tr("Alerts"), buildAlerts(), sliderLead);
    addRow(tr("The rules"), buildRules(), radioLead);
    addRow(tr("About"), buildAbout(), 0);
}

QWidget* SettingsView::block() {
    auto* widget = new QWidget(this);
    bareLayout<QVBoxLayout>(widget);
    return widget;
}

QWidget* SettingsView::addRow(const QString& label, QWidget* content, int lead) {
    const bool first = form_->layout()->isEmpty();
    auto* row = new SBRow(label, false, content, first, lead, form_);
    form_->layout()->addWidget(row);
    return row;
}

/// Applies `edit` to a copy of the settings; the store compares and saves it.
template <class Edit>
void SettingsView::change(Edit edit) {
    Settings settings = store_.settings();
    edit(settings);
    store_.setSettings(settings);
}

void SettingsView::addLimit(QWidget* block, const QString& label, double Settings::*field, int lower,
                            int upper, const QString& unit) {
    auto* line = new SliderLine(label, {lower, upper, unit}, block);
    connect(line, &SliderLine::moved, this,
            [this, field](int value) { change([&](Settings& settings) { settings.*field = value; }); });
    block->layout()->addWidget(line);
    limits_.push_back({field, line});
}

QWidget* SettingsView::buildConnection() {
    connection_ = new ConnectionForm(store_, this);
    return connection_;
}

QWidget* SettingsView::buildFlight() {
    QWidget* rows = block();
    addLimit(rows, tr("Flight height"), &Settings::flightHeight, 10, 30, tr("m"));
    addLimit(rows, tr("Never below"), &Settings::minimumHeight, 8, 20, tr("m"));
    addLimit(rows, tr("Follow distance"), &Settings::followDistance, 8, 30, tr("m"));
    return rows;
}

QWidget* SettingsView::buildBoundary() {
    QWidget* rows = block();
    addLimit(rows, tr("Stay this far inside"), &Settings::boundaryBuffer, 2, 15, tr("m"));
    columnOf(rows)->addSpacing(Measure::gap4);
    rows->layout()->addWidget(new Label2(tr("The boundary itself comes from velmora's config (your site "
                                            "plan). In demo mode it's the hedge line on the "
                                            "map."),
                                         false, rows));
    return rows;
}

QWidget* SettingsView::buildComingHome() {
    QWidget* rows = block();
    addLimit(rows, tr("Return when battery is below"), &Settings::returnBattery, 20, 50, tr("%"));
    addLimit(rows, tr("Don't launch if wind is over"), &Settings::maxWindKmh, 15, 38, tr("km/h"));
    return rows;
}

QWidget* SettingsView::buildTracking() {
    QWidget* rows = block();
    QStringList titles;
    for (const auto& [mode, id] : rawValuesOf<TrackingMode>)
        titles.append(trackingTitle(mode));
    tracking_ = new SegmentedChoice(tr("Tracking"), titles, false, rows);
    trackingNote_ = new Label2({}, false, rows);
    trackingNote_->setWrapWidth(Measure::trackingWidth);
    columnOf(rows)->addWidget(tracking_, 0, Qt::AlignLeft);
    columnOf(rows)->addSpacing(Measure::gap8);
    columnOf(rows)->addWidget(trackingNote_);
    connect(tracking_, &SegmentedChoice::activated, this, [this](int option) {
        change([&](Settings& s) {
            s.tracking = rawValuesOf<TrackingMode>[static_cast<std::size_t>(option)].first;
        });
    });
    return rows;
}

QWidget* SettingsView::buildAlerts() {
    QWidget* rows = block();
    addLimit(rows, tr("Alert expires after"), &Settings::approvalSeconds, 30, 120, tr("s"));
    const QString alert = forThisMachine(tr("Alert on this computer"), tr("Alert on this Mac"));
    notify_ = new Switch(alert, rows);
    topic_ = new TextField(tr("Phone (ntfy topic)"), tr("e.g. velmora-home"), rows);
    topic_->setFixedWidth(Measure::topicField);
    rows->layout()->addWidget(labelled(alert, notify_, rows));
    rows->layout()->addWidget(labelled(tr("Phone (ntfy topic)"), topic_, rows));
    connect(notify_, &Switch::turned, this,
            [this](bool on) { change([&](Settings& settings) { settings.notifyMac = on; }); });
    connect(topic_, &QLineEdit::textChanged, this, [this](const QString& topic) {
        change([&](Settings& settings) { settings.ntfyTopic = topic.toStdString(); });
    });
    return rows;
}

QWidget* SettingsView::buildRules() {
    QWidget* rows = block();
    for (const QString& rule :
         {tr("Every launch needs your approval. There is no automatic launch."),
          tr("Keep the drone in sight while it flies (UK Open category)."),
          tr("Flying with no one in control would need a CAA Operational Authorisation.")})
        rows->layout()->addWidget(new RuleLine(rule, rows));
    return rows;
}

QWidget* SettingsView::buildAbout() {
    QWidget* rows = block();
    columnOf(rows)->addSpacing(static_cast<int>(Type::groupHeading.line - Type::body.line) / 2);
    columnOf(rows)->addWidget(
        new Text(tr("Velmora 1.0 · consumer app for the velmora framework"), Type::body, SB::body, rows));
    columnOf(rows)->addSpacing(Measure::gap4);
    columnOf(rows)->addWidget(
        new Label2(tr("Set in Inter, used under the SIL Open Font License."), false, rows));
    columnOf(rows)->addSpacing(Measure::gap4);
    columnOf(rows)->addWidget(
        new Label2(tr("Every command for the drone is in journal.jsonl, in the data folder."), false, rows));
    startAtLogin_ = new Switch(tr("Start Velmora when I log in"), rows);
    auto* welcome = new SBButton(tr("Show welcome again"), {.kind = SBButtonKind::quiet}, rows);
    auto* folder = new SBButton(tr("Open data folder"), {.kind = SBButtonKind::secondary}, rows);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(Measure::gap8);
    buttons->addWidget(folder);
    buttons->addWidget(welcome);
    buttons->addStretch(1);
    columnOf(rows)->addSpacing(Measure::gap8);
    columnOf(rows)->addWidget(labelled(tr("Start Velmora when I log in"), startAtLogin_, rows));
    columnOf(rows)->addSpacing(Measure::gap8);
    columnOf(rows)->addLayout(buttons);
    connect(startAtLogin_, &Switch::turned, this, [this](bool on) {
        store_.setStartAtLogin(on);
        startAtLogin_->setChecked(store_.startsAtLogin());
    });
    connect(folder, &SBButton::clicked, this,
            [this] { QDesktopServices::openUrl(QUrl::fromLocalFile(store_.dataDirectory().path())); });
    connect(welcome, &SBButton::clicked, this, [this] { store_.setShowWelcome(true); });
    return rows;
}

void SettingsView::refresh() {
    const Settings& settings = store_.settings();
    connection_->refresh();
    showLimits();
    for (const Limit& limit : limits_)
        limit.line->setValue(settings.*limit.field);
    tracking_->setCurrentIndex(static_cast<int>(settings.tracking));
    trackingNote_->setText(trackingNote(settings.tracking));
    notify_->setChecked(settings.notifyMac);
    topic_->setText(toQString(settings.ntfyTopic));
    startAtLogin_->setChecked(store_.startsAtLogin());
}

} // namespace velmora
