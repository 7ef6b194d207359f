#pragma once

#include "model/live_state.h"

#include <QWidget>

namespace velmora {

class ArtImage;
class Text;

/// Who is being watched: the camera's picture, the label, the camera and how sure the system is.
class VisitorCard : public QWidget {
    Q_OBJECT

public:
    explicit VisitorCard(QWidget* parent);

    void setVisitor(const Visitor& visitor, const Site& site);

private:
    ArtImage* picture_;
    Text* label_;
    Text* camera_;
    Text* certainty_;
};

} // namespace velmora
