#include "ui/screens/cameras/camera_card.h"

#include "ui/blocks/art_image.h"
#include "ui/blocks/chip.h"
#include "ui/blocks/hairline.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/status_dot.h"
#include "ui/blocks/text.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"
#include "ui/screens/cameras/toggle_row.h"

#include <QVBoxLayout>

#include <algorithm>

namespace velmora {

CameraCard::CameraCard(AppStore& store, const CameraInfo& cam, QWidget* parent)
    : QWidget(parent),
      store_(store),
      cam_(cam),
      picture_(new ArtImage(toQString(cam.snapshot), ArtImage::Mode::fill, Measure::cardRadius, this)) {
    picture_->setRatio(Measure::cameraRatio);
    lastSeen_ = new Chip(picture_);
    lastSeen_->setDot(SB::alert, true);
    lastSeen_->move(Measure::gap12, Measure::gap12);
    auto* column = bareLayout<QVBoxLayout>(this);
    column->addWidget(picture_);
    column->addSpacing(Measure::gap16);
    column->addWidget(buildName());
    column->addSpacing(Measure::gap12);
    column->addWidget(new Hairline(this));
    faces_ = toggleRow(tr("Faces it doesn't recognise"), tr("Recommended"), &Settings::alertUnknownFaces);
    people_ =
        toggleRow(tr("Any person, even without a face"), tr("More alerts at night"), &Settings::alertPeople);
    column->addWidget(faces_);
    column->addWidget(people_);
    refresh(cam);
}

QWidget* CameraCard::buildName() {
    auto* heading = new QWidget(this);
    name_ = new Text({}, Type::cardName, SB::ink, heading);
    name_->setMaximumLines(1);
    alerts_ = new Text({}, Type::label2, SB::muted, heading);
    dot_ = new StatusDot({.color = SB::dot, .halo = true, .diameter = Measure::cameraDot}, heading);
    online_ = new Text({}, Type::label2, SB::muted, heading);
    auto* row = new QHBoxLayout;
    row->setSpacing(Measure::gap4);
    row->addWidget(name_, 1);
    row->addWidget(dot_, 0, Qt::AlignVCenter);
    row->addWidget(online_, 0, Qt::AlignVCenter);
    auto* column = bareLayout<QVBoxLayout>(heading);
    column->addLayout(row);
    column->addWidget(alerts_);
    return heading;
}

ToggleRow* CameraCard::toggleRow(const QString& title, const QString& detail, Switches which) {
    auto* row = new ToggleRow(title, detail, shownText(cam_.name), this);
    connect(row, &ToggleRow::turned, this, [this, which](bool on) { turn(which, on); });
    return row;
}

/// Writes only the entry of this switch; cameras without an entry keep the default.
void CameraCard::turn(Switches which, bool on) {
    Settings settings = store_.settings();
    (settings.*which)[cam_.id] = on;
    store_.setSettings(settings);
}

bool CameraCard::isOn(Switches which, bool defaultValue) const {
    const auto& switches = store_.settings().*which;
    const auto entry = switches.find(cam_.id);
    return entry == switches.end() ? defaultValue : entry->second;
}

void CameraCard::refresh(const CameraInfo& cam) {
    cam_ = cam;
    picture_->setName(toQString(cam.snapshot));
    name_->setText(shownText(cam.name));
    picture_->setDescription(tr("Picture of %1").arg(name_->text()));
    const auto raised = std::ranges::count(store_.history(), cam.id,
                                           [](const HistoryEntry& entry) { return entry.record->cameraId; });
    alerts_->setText(raised == 0   ? tr("No alerts in the history")
                     : raised == 1 ? tr("1 alert in the history")
                                   : tr("%1 alerts in the history").arg(raised));
    faces_->setChecked(isOn(&Settings::alertUnknownFaces, true));
    people_->setChecked(isOn(&Settings::alertPeople, false));
    showConnection();
}

void CameraCard::showConnection() {
    const bool online = cam_.online;
    picture_->setFaint(!online);
    dot_->setDotStyle(
        {.color = online ? SB::dot : SB::alert, .halo = online, .diameter = Measure::cameraDot});
    online_->setText(online ? tr("Online") : tr("Offline"));
    online_->setStyle(online ? Type::label2 : Type::label2Strong);
    online_->setColor(online ? SB::muted : SB::alert);
    const auto seen = online ? std::nullopt : store_.cameraLastOnline(cam_.id);
    lastSeen_->setVisible(seen.has_value());
    if (seen)
        lastSeen_->setText(tr("Last seen %1").arg(dayAndTime(*seen, store_.now())));
    for (ToggleRow* row : {faces_, people_})
        row->setOffline(!online);
}

} // namespace velmora
