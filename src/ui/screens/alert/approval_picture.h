#pragma once

#include "model/freshness.h"
#include "ui/screens/time_left.h"

#include <QAbstractButton>

namespace velmora {

class AlertInset;
class ArtImage;
class Chip;

/// The top of the approval card: the camera picture with a caption and an inset map, and the bar of the time
/// left. A click or the space bar enlarges it.
class ApprovalPicture : public QAbstractButton {
    Q_OBJECT

public:
    explicit ApprovalPicture(QWidget* parent);

    void setState(const LiveState& state, const Settings& settings, Freshness freshness);
    /// nullopt: unknown.
    void setTimeLeft(const std::optional<TimeLeft>& left);
    /// Size of the picture; `enlarged` is 0 for the crop about the visitor, 1 for the whole picture.
    void setPictureSize(QSize size, double enlarged);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent*) override {} // the children draw everything
    void resizeEvent(QResizeEvent* event) override;

private:
    class Bar;

    ArtImage* picture_;
    Chip* chip_;
    AlertInset* inset_;
    Bar* bar_;
    bool stale_ = false;
};

} // namespace velmora
