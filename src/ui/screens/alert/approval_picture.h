#pragma once

#include "model/live_state.h"

#include <QWidget>

namespace velmora {

class ArtImage;
class Chip;

/// The top of the approval card: what the camera sees, which camera and when, and the time that is left.
class ApprovalPicture : public QWidget {
    Q_OBJECT

public:
    explicit ApprovalPicture(QWidget* parent);

    void setAlert(const QString& picture, const QString& chip);
    /// Share of the time that is left, 0 to 1.
    void setTimeLeft(double share);

private:
    class Bar;

    ArtImage* picture_;
    Chip* chip_;
    Bar* bar_;
};

} // namespace velmora
