#pragma once

#include "model/live_state.h"

#include <QWidget>

namespace velmora {

class ArtImage;
class Text;

/// The visitor: camera picture, label, camera name and match confidence.
class VisitorCard : public QWidget {
    Q_OBJECT

public:
    explicit VisitorCard(QWidget* parent);

    void setVisitor(const Visitor& visitor, const Site& site);
    /// Draws picture and name paler, for a state that may be out of date.
    void setDimmed(bool dimmed);

private:
    ArtImage* picture_;
    Text* label_;
    Text* camera_;
    Text* certainty_;
    Text* inside_;
    Text* outside_;
};

} // namespace velmora
