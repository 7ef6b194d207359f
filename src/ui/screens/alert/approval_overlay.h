#pragma once

#include "ui/blocks/overlay_card.h"
#include "ui/guard/answer_guard.h"

namespace velmora {

class ApprovalPicture;
class Metric;
class Text;

/// Asks the owner whether the drone may launch, over every section.
class ApprovalOverlay : public OverlayCard {
    Q_OBJECT

public:
    ApprovalOverlay(AppStore& store, AnswerGuard& guard, QWidget* window);

    /// Opens or closes the card for the store's alert; the window calls it once, when the card is laid out.
    void followPhase();

signals:
    /// The card comes up, or asks about another alert.
    void asked();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void build();
    QWidget* buildMetrics();
    QWidget* buildButtons();
    void refresh();
    void countDown();

    AppStore& store_;
    AnswerGuard& guard_;
    ApprovalPicture* picture_;
    Text* title_;
    Text* body_;
    Metric* match_;
    Metric* battery_;
    Metric* wind_;
    Metric* expires_;
    UiTimer countdown_{std::chrono::milliseconds(250)};
    std::optional<AlertId> asked_;    ///< the alert that the card asks about
    std::optional<Date> answeredAt_;  ///< when the owner last answered it
    std::optional<AlertId> unheeded_; ///< an alert whose answer had no effect
    double wholeTime_ = 0;            ///< seconds that were left when the alert came
};

} // namespace velmora
