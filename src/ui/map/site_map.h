#pragma once

#include "model/freshness.h"
#include "ui/look/motion.h"
#include "ui/look/ui_clock.h"
#include "ui/map/map_scene.h"

#include <QPixmap>
#include <QWidget>

namespace velmora {

/// The animated plan of the grounds, or the still replay of a finished mission. It draws at most 30 frames a
/// second, and none while nothing on it can have changed or nobody can see it.
class SiteMap : public QWidget {
    Q_OBJECT

public:
    explicit SiteMap(QWidget* parent);

    /// The live picture. An old one is paler and still; without one (null) the map shows only a word.
    void setState(const LiveState* known, const Settings& settings, Freshness freshness);
    /// A mission's paths over the grounds. Cheap enough for every frame of a replay.
    void setReplay(Replay replay, const LiveState& state, const Settings& settings);
    void setShowLabels(bool show);
    /// Something lies over the map: no frames until it is gone.
    void setCovered(bool covered);

    /// The whole map as it stands, drawn anew at so many pixels for one of its own.
    QPixmap picture(int scale) const;

    bool hasHeightForWidth() const override { return true; }
    /// The height that the site's proportions give for a width.
    int heightForWidth(int width) const override;
    /// The largest map that fits, though not narrower than `least` where there is room: then the plan is
    /// centred.
    QSize fitted(QSize room, int least) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void setFreshness(Freshness freshness);
    void setScene(MapScene scene);
    bool isAnimated() const;
    void runOrRest();
    void showFrame();
    void describe();
    void drawStill();
    QPixmap blank(double scale, const QColor& color) const;

    MapScene scene_;
    Freshness freshness_ = Freshness::live;
    bool covered_ = false;
    bool onScreen_ = false; ///< false also while the window is minimised
    UiTimer frames_{Motion::frame};
    QRectF shownArea_; ///< of the last frame's moving parts
    bool groundsStale_ = true;
    bool pathsStale_ = true;
    QPixmap grounds_;
    QPixmap paths_; ///< transparent but for the paths
    double describedAt_ = 0;
};

} // namespace velmora
