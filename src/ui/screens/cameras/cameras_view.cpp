#include "ui/screens/cameras/cameras_view.h"

#include "ui/blocks/page.h"
#include "ui/blocks/text.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"
#include "ui/screens/cameras/camera_card.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

bool sameCameras(const std::vector<CameraInfo>& cameras, const std::vector<CameraCard*>& cards) {
    return std::ranges::equal(cameras, cards, {}, &CameraInfo::id, &CameraCard::id);
}

} // namespace

/// As many equal columns as fit.
class CamerasView::Grid : public QWidget {
public:
    explicit Grid(QWidget* parent)
        : QWidget(parent), noCamera_(new Text({}, Type::emptyTitle, SB::ink, this)) {
        noCamera_->setGeometry(0, 0, Measure::camerasLedeWidth, static_cast<int>(Type::emptyTitle.line));
    }

    void refresh(AppStore& store) {
        static const std::vector<CameraInfo> unknown;
        const LiveState* known = store.knownState();
        const auto& cameras = known ? known->site.cameras : unknown;
        noCamera_->setText(known ? CamerasView::tr("No cameras yet")
                                 : CamerasView::tr("Waiting for velmora"));
        noCamera_->setVisible(cameras.empty());
        if (!sameCameras(cameras, cards_)) {
            for (CameraCard* card : cards_)
                card->deleteLater();
            cards_.clear();
            for (const CameraInfo& cam : cameras) {
                cards_.push_back(new CameraCard(store, cam, this));
                cards_.back()->show();
            }
            updateGeometry();
            lay();
        }
        for (std::size_t i = 0; i < cards_.size(); ++i)
            cards_[i]->refresh(cameras[i]);
    }

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override {
        const int rows = (static_cast<int>(cards_.size()) + columns(width) - 1) / columns(width);
        if (rows == 0)
            return noCamera_->height();
        return rows * cardHeight(width) + std::max(rows - 1, 0) * Measure::cameraRowGap;
    }
    QSize sizeHint() const override { return {Measure::cameraMinimum, heightForWidth(width())}; }

protected:
    void resizeEvent(QResizeEvent*) override { lay(); }

private:
    static int columns(int width) {
        return std::max((width + Measure::gap24) / (Measure::cameraMinimum + Measure::gap24), 1);
    }
    static double cardWidth(int width) {
        return (width - (columns(width) - 1.0) * Measure::gap24) / columns(width);
    }
    int cardHeight(int width) const {
        return cards_.empty() ? 0 : cards_.front()->heightForWidth(static_cast<int>(cardWidth(width)));
    }
    void lay() {
        const int across = columns(width());
        const double step = cardWidth(width()) + Measure::gap24;
        const int height = cardHeight(width());
        for (int i = 0; i < static_cast<int>(cards_.size()); ++i) {
            const int left = static_cast<int>(std::lround(i % across * step));
            const int top = i / across * (height + Measure::cameraRowGap);
            cards_[static_cast<std::size_t>(i)]->setGeometry(left, top, static_cast<int>(cardWidth(width())),
                                                             height);
        }
    }

    Text* noCamera_; ///< says why there are no cards
    std::vector<CameraCard*> cards_;
};

CamerasView::CamerasView(AppStore& store, QWidget* parent) : Screen(store, parent), grid_(new Grid(this)) {
    setPage(new Page(
        {.eyebrow = tr("Cameras · UniFi Protect"),
         .headline = {tr("What sets off "), tr("an alert"), tr(".")},
         .lede = tr("Each camera can alert on faces it doesn't recognise, and optionally on any person it "
                    "sees. People you've named in UniFi Protect never trigger the drone."),
         .ledeWidth = Measure::camerasLedeWidth,
         .contentGap = Measure::gap32,
         .content = grid_},
        this));
    refreshOn({&AppStore::stateChanged, &AppStore::settingsChanged, &AppStore::historyChanged,
               &AppStore::freshnessChanged});
}

void CamerasView::refresh() {
    grid_->refresh(store_);
}

} // namespace velmora
