#pragma once

#include "model/freshness.h"
#include "ui/look/motion.h"
#include "ui/look/ui_clock.h"
#include "ui/map/map_scene.h"

#include <QColor>
#include <QPixmap>
#include <QWidget>

namespace velmora {

/// Plain colours around the upper and the lower corners of a map.
struct CornerColors {
    QColor above, below;

    bool operator==(const CornerColors&) const = default;
};

/// The animated map of the site, or the replay of a finished mission. It draws at most a frame in each
/// tick, and none while nothing moves or nobody can see it.
class SiteMap : public QWidget {
    Q_OBJECT

public:
    explicit SiteMap(QWidget* parent);

    /// Shows the live state. A stale state is paler and not animated; if `known` is null, the map shows only
    /// a text.
    void setState(const LiveState* known, const Settings& settings, Freshness freshness);
    /// Shows a mission's paths over the grounds. Fast enough for every frame of a replay.
    void setReplay(Replay replay, const LiveState& state, const Settings& settings);
    /// A small map inside a picture: without captions, and with the point where the drone would hold.
    void setInset(bool inset);
    /// What is around the rounded corners; nullopt if that has no single colour. A map that knows it paints
    /// every pixel itself, so that a frame costs nothing but the map.
    void setCorners(const std::optional<CornerColors>& around);
    /// Another widget covers the map: no frames are drawn until it is gone.
    void setCovered(bool covered);

    /// Paints the map in its current size, with `scale` device pixels for each logical pixel.
    QPixmap picture(int scale) const;

    /// The height at this width that keeps the site's proportions.
    int heightForWidth(int width) const override;
    /// The size of the largest map with the site's proportions that fits into `room`.
    QSize fitted(QSize room) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void setFreshness(Freshness freshness);
    void setScene(const LiveState& state, const Settings& settings, std::optional<Replay> replay);
    void placeLabel();
    bool isAnimated() const;
    void updateAnimation();
    void showFrame();
    void describe();
    void repaintGrounds();
    void repaintPaths(const QRectF& area);
    bool isScaleFractional() const;
    void updateLayers();
    void drawStalePaths();
    void paintMap(QPainter& painter);
    void paintCorners(QPainter& painter, const QRect& painted) const;
    QRectF roundedShape() const;
    QPixmap emptyLayer(double scale, const QColor& color) const;

    MapScene scene_;
    Freshness freshness_ = Freshness::live;
    bool covered_ = false;
    bool onScreen_ = false; ///< false also while the window is minimised
    UiTimer frames_{Motion::mapFrame};
    QRectF shownArea_; ///< of the last frame's moving parts
    std::optional<CornerColors> corners_;
    bool groundsStale_ = true;
    QRect stalePaths_;
    QPixmap grounds_;
    QPixmap still_; ///< the grounds with the paths: all that does not move between two ticks
    double describedAt_ = 0;
};

} // namespace velmora
