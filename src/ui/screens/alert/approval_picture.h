#pragma once

#include "model/live_state.h"

#include <QWidget>

namespace velmora {

class ArtImage;
class Chip;

/// The top of the approval card: the camera picture, a caption with camera and time, and a countdown bar.
class ApprovalPicture : public QWidget {
    Q_OBJECT

public:
    explicit ApprovalPicture(QWidget* parent);

    void setAlert(const QString& picture, const QString& chip);
    /// Sets the remaining share of the time, 0 to 1.
    void setTimeLeft(double share);

private:
    class Bar;

    ArtImage* picture_;
    Chip* chip_;
    Bar* bar_;
};

} // namespace velmora
