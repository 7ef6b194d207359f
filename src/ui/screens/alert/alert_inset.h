#pragma once

#include "model/freshness.h"
#include "model/live_state.h"
#include "model/settings.h"

#include <QStringList>
#include <QWidget>

namespace velmora {

class SiteMap;

/// The small map in the corner of the alert's picture, and below it where the visitor is.
class AlertInset : public QWidget {
    Q_OBJECT

public:
    explicit AlertInset(QWidget* parent);

    /// `state` must have a visitor.
    void setState(const LiveState& state, const Settings& settings, Freshness freshness);
    void setMapSize(QSize size);

    /// Room for the shadow around the frame, pixels.
    static constexpr int margin = 8;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void arrange();
    int wordsHeight() const; ///< of the texts below the map, pixels
    QRect frame() const { return rect().adjusted(margin, margin, -margin, -margin); }

    SiteMap* map_;
    QSize mapSize_;
    QString distance_;
    QString place_;
    QStringList placeLines_;
    bool inside_ = false;
    bool stale_ = false;
};

} // namespace velmora
