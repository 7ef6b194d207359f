#pragma once

#include "store/app_store.h"

#include <QWidget>

class QVBoxLayout;

namespace velmora {

class AnswerButton;
class AnswerGuard;
class ArtImage;
class Metric;
class Text;
class TextLine;

/// "Now": the visitor, the launch button while an alert waits, and the drone's battery and distance while it
/// flies. A stale state is shown paler, as "Last known".
class NowGroup : public QWidget {
    Q_OBJECT

public:
    NowGroup(AppStore& store, AnswerGuard& guard, QWidget* parent);

    /// Whether a visitor is present or a mission is under way.
    bool isDue() const;
    /// Keeps the last content if the group is not due.
    void refresh();
    /// Uses smaller gaps, for low windows.
    void setLow(bool low);

private:
    QWidget* buildVisitor();
    QWidget* buildMetrics();
    void showHeading();
    void showVisitor(const LiveState& state);
    void showLaunch();
    void showMetrics(const LiveState& state);

    AppStore& store_;
    Text* heading_;
    TextLine* time_;
    QWidget* visitor_;
    ArtImage* picture_;
    Text* name_;
    Text* camera_;
    Text* certainty_;
    Text* location_;
    QWidget* launchRow_;
    AnswerButton* launch_;
    QWidget* metrics_;
    Metric* battery_;
    Metric* toVisitor_;
    Metric* fromPad_;
    QVBoxLayout* line_; ///< the hairline and the gaps around it
};

} // namespace velmora
