#include "ui/screens/cameras/cameras_view.h"

#include "ui/blocks/empty_state.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/page.h"
#include "ui/blocks/sb_button.h"
#include "ui/look/measures.h"
#include "ui/screens/cameras/camera_card.h"

#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

bool sameCameras(const std::vector<CameraInfo>& cameras, const std::vector<CameraCard*>& cards) {
    return std::ranges::equal(cameras, cards, {}, &CameraInfo::id, &CameraCard::id);
}

/// A grid of equal cards in as many equal columns as fit and the cards fill.
class CardGrid : public ItemLayout {
public:
    QSize sizeHint() const override { return minimumSize(); }
    QSize minimumSize() const override { return {Measure::cameraMinimum, 0}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override {
        const int rows = (count() + columns(width) - 1) / columns(width);
        return std::max(rows * rowStep(width) - Measure::cameraRowGap, 0);
    }
    void setGeometry(const QRect& rect) override {
        QLayout::setGeometry(rect);
        const double width = cardWidth(rect.width());
        const QSize card(static_cast<int>(width), rowStep(rect.width()) - Measure::cameraRowGap);
        for (int i = 0; i < count(); ++i) {
            const int column = i % columns(rect.width()), row = i / columns(rect.width());
            const auto x = static_cast<int>(std::lround(column * (width + Measure::gap24)));
            itemAt(i)->setGeometry({rect.topLeft() + QPoint(x, row * rowStep(rect.width())), card});
        }
    }

private:
    int columns(int width) const {
        const int fitting = (width + Measure::gap24) / (Measure::cameraMinimum + Measure::gap24);
        return std::max(std::min(fitting, std::max(count(), Measure::cameraColumns)), 1);
    }
    double cardWidth(int width) const {
        return (width - (columns(width) - 1.0) * Measure::gap24) / columns(width);
    }
    /// Distance between the tops of two rows, in pixels.
    int rowStep(int width) const {
        const int card = isEmpty() ? 0 : itemAt(0)->heightForWidth(static_cast<int>(cardWidth(width)));
        return card + Measure::cameraRowGap;
    }
};

} // namespace

CamerasView::CamerasView(AppStore& store, QWidget* parent) : Screen(store, parent), grid_(new CardGrid) {
    auto* content = new QWidget(this);
    auto* connection = new SBButton(tr("Connection settings"), {.kind = SBButtonKind::secondary}, content);
    connect(connection, &SBButton::clicked, &store_, &AppStore::openConnection);
    empty_ = new EmptyState(Icon::cameras, connection, content);
    cardArea_ = new QWidget(content);
    auto* cards = bareLayout<QVBoxLayout>(cardArea_);
    cards->addLayout(grid_);
    cards->addStretch(1);
    auto* column = bareLayout<QVBoxLayout>(content);
    column->addWidget(empty_, 1);
    column->addWidget(cardArea_, 1);
    setPage(new Page(
        {.eyebrow = tr("Cameras · UniFi Protect"),
         .headline = Sentence::marked(tr("What sets off *an alert*.")),
         .lede = tr("Each camera can alert on faces it doesn't recognise, and optionally on any person it "
                    "sees. People you've named in UniFi Protect never trigger the drone."),
         .ledeWidth = Measure::camerasLedeWidth,
         .fills = true,
         .contentGap = Measure::gap32,
         .content = content},
        this));
    refreshOn({&AppStore::stateChanged, &AppStore::settingsChanged, &AppStore::historyChanged,
               &AppStore::freshnessChanged});
}

void CamerasView::setCameras(const std::vector<CameraInfo>& cameras) {
    for (CameraCard* card : cards_) {
        grid_->removeWidget(card);
        card->deleteLater();
    }
    cards_.clear();
    for (const CameraInfo& cam : cameras) {
        cards_.push_back(new CameraCard(store_, cam, cardArea_));
        grid_->addWidget(cards_.back());
    }
}

void CamerasView::refresh() {
    static const std::vector<CameraInfo> unknown;
    const LiveState* known = store_.knownState();
    const auto& cameras = known ? known->site.cameras : unknown;
    if (known)
        empty_->setTexts(tr("No cameras yet"),
                         tr("velmora's config has no cameras, so nobody on your grounds is noticed and you "
                            "get no alerts. Add them there, and they appear here."));
    else
        empty_->setTexts(tr("Waiting for velmora"),
                         tr("Your cameras appear here as soon as velmora answers."));
    empty_->setVisible(cameras.empty());
    cardArea_->setVisible(!cameras.empty());
    if (!sameCameras(cameras, cards_))
        setCameras(cameras);
    for (std::size_t i = 0; i < cards_.size(); ++i)
        cards_[i]->refresh(cameras[i]);
}

} // namespace velmora
