#pragma once

#include "ui/blocks/overlay_card.h"
#include "ui/guard/answer_guard.h"

namespace velmora {

class ApprovalPicture;
class Metric;
class Text;

/// The card that asks the owner whether the drone may launch. It covers every section.
class ApprovalOverlay : public OverlayCard {
    Q_OBJECT

public:
    ApprovalOverlay(AppStore& store, AnswerGuard& guard, QWidget* window);

    /// Opens or closes the card for the store's alert. The window calls it once, after adding the card to its
    /// layout; later changes are detected here.
    void updateAlert();

signals:
    /// The card opened, or switched to another alert.
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
    std::optional<AlertId> asked_;       ///< the alert shown on the card
    std::optional<Date> answeredAt_;     ///< when the owner last answered it
    std::optional<AlertId> ineffective_; ///< an alert whose answer the server did not act on
    double initialTimeLeft_ = 0;         ///< seconds until the deadline when the alert arrived
};

} // namespace velmora
